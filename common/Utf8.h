#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What stands where there is no character.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// The first character of a text; broken: one byte that is no part of a character counts for
// U+FFFD.  Surrogates and characters beyond U+10FFFF are none; nor are longer spellings.  Source:
// RFC 3629.
struct Utf8Character {
    char32_t value = kReplacementCharacter;
    std::size_t length = 1; // bytes
    bool isBroken = true;
};

// text: not empty.
[[nodiscard]] Utf8Character FirstCharacterOf(std::string_view text) noexcept;

// character: no surrogate, at most U+10FFFF; any other number is added as U+FFFD.
void AppendCharacter(std::string& text, char32_t character);

[[nodiscard]] bool IsAscii(std::string_view text) noexcept;
[[nodiscard]] bool IsValidUtf8(std::string_view text) noexcept;
