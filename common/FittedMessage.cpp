#include "common/FittedMessage.h"

#include "common/Text.h"

#include <algorithm>
#include <vector>

namespace {

constexpr const char* kMore = "...";

// More than any screen shows: longer texts are not worth to be measured.
constexpr std::size_t kMostBytes = 16000;

constexpr std::size_t kLongWord = 80; // bytes; a line of the box may have room for fewer
constexpr std::size_t kShortWord = 10;

std::string_view WholeCharacters(std::string_view text, std::size_t bytes) {
    std::size_t end = std::min(bytes, text.size());
    while (end > 0 && end < text.size() && IsInsideCharacter(text[end]))
        --end;
    return text.substr(0, end);
}

// Words that are longer go on in the next line.
std::string WithBrokenWords(std::string_view text, std::size_t longest) {
    std::string broken;
    std::size_t length = 0; // of the word so far
    for (const char byte : text) {
        if (byte == ' ' || byte == '\r' || byte == '\n' || byte == '\t') {
            length = 0;
        } else if (++length > longest && !IsInsideCharacter(byte)) {
            broken += kLineBreak;
            length = 1;
        }
        broken += byte;
    }
    return broken;
}

std::string WithRoomForWords(std::string_view text, int width, const MessageMeasure& measure) {
    std::string fitted(text);
    for (std::size_t longest = kLongWord; longest >= kShortWord && measure(fitted).width > width;
         longest /= 2)
        fitted = WithBrokenWords(text, longest);
    return fitted;
}

// At the end of a line, else of a word, when there is one near the end.
std::string_view WithoutBegunLine(std::string_view text) {
    for (const char* ends : {"\r\n", " "}) {
        const std::size_t end = text.find_last_of(ends);
        if (end != std::string_view::npos && text.size() - end <= kLongWord)
            return text.substr(0, text.find_last_not_of("\r\n ", end) + 1);
    }
    return text;
}

std::string WithMore(std::string_view text) {
    return std::string(text) + kLineBreak + kMore;
}

// The longest start of the text that has room together with the mark that there is more.
std::string FirstLines(const std::string& text, int height, const MessageMeasure& measure) {
    std::size_t fits = 0;
    std::size_t tooLong = text.size() + 1;
    while (fits + 1 < tooLong) {
        const std::size_t middle = (fits + tooLong) / 2;
        const bool hasRoom = measure(WithMore(WholeCharacters(text, middle))).height <= height;
        (hasRoom ? fits : tooLong) = middle;
    }
    return WithMore(WithoutBegunLine(WholeCharacters(text, fits)));
}

} // namespace

std::string FittedMessage(std::string_view text, const MessageSize& room,
                          const MessageMeasure& measure) {
    const std::string_view measured = WholeCharacters(text, kMostBytes);
    std::string fitted = WithRoomForWords(measured, room.width, measure);
    if (measured.size() == text.size() && measure(fitted).height <= room.height)
        return fitted;
    return FirstLines(fitted, room.height, measure);
}
