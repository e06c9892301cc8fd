#include "common/Windows1252.h"

#include "common/Utf8.h"

#include <array>

namespace Windows1252 {

namespace {

// What differs from Latin-1.
constexpr unsigned char kFirst = 0x80;
constexpr std::array<char16_t, 32> kCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

char32_t CharacterOf(unsigned char byte) noexcept {
    const bool differs = byte >= kFirst && byte < kFirst + kCharacters.size();
    return differs ? kCharacters[byte - kFirst] : byte;
}

SingleByteCodePage CodePage() {
    const auto characterOf = [](unsigned char byte) {
        std::string character;
        AppendCharacter(character, CharacterOf(byte));
        return character;
    };
    return {characterOf, [](unsigned char) { return true; }};
}

} // namespace Windows1252
