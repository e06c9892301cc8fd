#include "common/RuntimeError.h"

#include "common/Text.h"

#include <utility>

namespace {

// Words from elsewhere are their own text in every language.
constexpr ErrorText kWordsFromElsewhere{-1, "%1"};

template <class WordsOf>
std::string Lines(const std::vector<ErrorSentence>& sentences, const WordsOf& wordsOf) {
    std::string lines;
    for (const ErrorSentence& sentence : sentences) {
        lines += lines.empty() ? "" : kLineBreak;
        lines += WithArguments(wordsOf(sentence.text), sentence.arguments);
    }
    return lines;
}

std::string BuiltIn(const std::vector<ErrorSentence>& sentences) {
    return Lines(sentences, [](const ErrorText& text) { return text.builtIn; });
}

} // namespace

RuntimeError::RuntimeError(int number, const std::string& words, std::string member)
    : RuntimeError(number, kWordsFromElsewhere, {words}, std::move(member)) {}

RuntimeError::RuntimeError(int number, const ErrorText& text,
                           const std::vector<std::string>& arguments, std::string member)
    : RuntimeError(number, std::vector{ErrorSentence{text, arguments}}, std::move(member)) {}

RuntimeError::RuntimeError(int number, std::vector<ErrorSentence> sentences, std::string member)
    : std::runtime_error(BuiltIn(sentences)), number_(number), sentences_(std::move(sentences)),
      member_(std::move(member)) {}

std::string RuntimeError::Description(InfoTexts& texts) const {
    return Lines(sentences_, [&texts](const ErrorText& text) {
        return text.number == kWordsFromElsewhere.number
                   ? std::string(text.builtIn)
                   : texts.GetInfoTextOr(text.number, text.builtIn);
    });
}

RuntimeError RuntimeError::WithMember(const std::string& member) const {
    return {number_, sentences_, member};
}

RuntimeError RuntimeError::At(const ErrorSentence& place) const {
    std::vector<ErrorSentence> sentences = sentences_;
    sentences.push_back(place);
    return {number_, std::move(sentences), member_};
}
