#include "common/Text.h"

#include <algorithm>

std::vector<std::string> SplitFields(std::string_view text, std::string_view separator) {
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t found = text.find(separator); found != std::string_view::npos;
         found = text.find(separator, start)) {
        fields.emplace_back(text.substr(start, found - start));
        start = found + separator.size();
    }
    fields.emplace_back(text.substr(start));
    return fields;
}

std::string ToLowerAscii(std::string_view text) {
    std::string lower(text);
    for (char& character : lower)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return lower;
}

std::vector<std::string> CharactersOf(std::string_view text) {
    std::vector<std::string> characters;
    for (const char byte : text) {
        if (!IsInsideCharacter(byte) || characters.empty())
            characters.emplace_back();
        characters.back() += byte;
    }
    return characters;
}

std::string CutText(std::string_view text, std::size_t length) {
    std::string cut;
    const std::vector<std::string> characters = CharactersOf(text.substr(0, 4 * (length + 1)));
    if (characters.size() <= length)
        return std::string(text);
    for (std::size_t index = 0; index < length; ++index)
        cut += characters[index];
    return cut + "...";
}

std::string InOneLine(std::string text) {
    std::ranges::replace_if(
        text, [](char letter) { return letter == '\r' || letter == '\n'; }, ' ');
    return text;
}
