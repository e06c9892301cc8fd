#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

// The characters after the last "\"; the whole text when it holds none.
[[nodiscard]] inline std::string FileNamePart(const std::string& path) {
    return path.substr(path.rfind('\\') + 1); // npos + 1 is 0
}

// The name of a file without its folder and its extension.
[[nodiscard]] inline std::string FileNameStem(const std::string& path) {
    const std::string name = FileNamePart(path);
    return name.substr(0, name.rfind('.'));
}

// Letters of A to Z count in either case.  extension: lower case, with its dot.
[[nodiscard]] inline bool HasExtension(const std::string& path, std::string_view extension) {
    const auto lower = [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 'a' - 'A')
                                                    : character;
    };
    return path.size() >= extension.size() &&
           std::equal(extension.begin(), extension.end(),
                      path.end() - static_cast<std::ptrdiff_t>(extension.size()),
                      [&](char wanted, char found) { return wanted == lower(found); });
}

// The number that ends a file's name before its extension: 12 for "banner12.bmp"; 0 when it ends
// with none, or with one of more than nine digits.
[[nodiscard]] inline int NumberOfFile(const std::string& path) {
    const std::string stem = FileNameStem(path);
    const std::string digits = stem.substr(stem.find_last_not_of("0123456789") + 1);
    constexpr std::size_t kMostDigits = 9; // of an int
    return digits.empty() || digits.size() > kMostDigits ? 0 : std::stoi(digits);
}

// The characters up to and including the last "\"; empty when the text holds none.
[[nodiscard]] inline std::string FilePathPart(const std::string& path) {
    return path.substr(0, path.rfind('\\') + 1);
}

// A text as the name of a file without an ending: "-" for each character that may not be in one,
// and for each dot; never empty.
[[nodiscard]] std::string AsFileName(std::string text);

// The path with a suffix behind its name.  A name without room for it loses as much of its end; it
// is never cut inside a character.
[[nodiscard]] std::string PathWithSuffix(const std::string& path, std::string_view suffix);
