#pragma once

#include <string>
#include <string_view>
#include <vector>

// Splits a text at a separator.  The result holds separators + 1 fields; an empty text gives one
// empty field.
[[nodiscard]] std::vector<std::string> SplitFields(std::string_view text,
                                                   std::string_view separator);

// Whether a unit of UTF-8 (a byte) belongs to the character that began before it.
[[nodiscard]] constexpr bool IsInsideCharacter(char unit) noexcept {
    return (static_cast<unsigned char>(unit) & 0xC0U) == 0x80U;
}

// The characters of a UTF-8 text.
[[nodiscard]] std::vector<std::string> CharactersOf(std::string_view text);

// The text, or its first characters and "..." when it is longer.  UTF-8.
[[nodiscard]] std::string CutText(std::string_view text, std::size_t length);

// Lower case for A..Z only; every other character stays.
[[nodiscard]] std::string ToLowerAscii(std::string_view text);

// The text with a blank in the place of each character that breaks a line.
[[nodiscard]] std::string InOneLine(std::string text);

// The line break inside messages and text files.
inline constexpr const char* kLineBreak = "\r\n";
