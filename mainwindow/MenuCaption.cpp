#include "mainwindow/MenuCaption.h"

#include <string_view>

std::string PlainCaption(const std::string& caption) {
    constexpr std::string_view kQuestionFollows = " ...";
    std::string words;
    for (std::size_t index = 0; index < caption.size(); ++index) {
        const bool isMark = caption[index] == '&';
        if (isMark && ++index == caption.size()) // "&&" is one "&" that is shown
            break;
        words += caption[index];
    }
    if (words.ends_with(kQuestionFollows))
        words.resize(words.size() - kQuestionFollows.size());
    return words;
}
