#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
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

[[nodiscard]] inline bool IsAscii(std::string_view text) noexcept {
    constexpr std::uint64_t kHighestBits = 0x8080808080808080U;
    std::uint64_t found = 0;
    std::uint64_t eight = 0;
    for (; text.size() >= sizeof eight; text.remove_prefix(sizeof eight)) {
        std::memcpy(&eight, text.data(), sizeof eight);
        found |= eight;
    }
    for (const char byte : text)
        found |= static_cast<unsigned char>(byte);
    return (found & kHighestBits) == 0;
}
[[nodiscard]] bool IsValidUtf8(std::string_view text) noexcept;
