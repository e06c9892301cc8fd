#include "common/Utf8.h"

#include "common/Text.h"

#include <algorithm>

namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;

constexpr bool IsCharacter(char32_t value) {
    return value <= kLastCharacter && (value < 0xD800 || value > 0xDFFF);
}

// How a character begins: the bytes behind its first one, and the least character that needs them.
struct Lead {
    std::size_t tails = 0; // 0: no lead of several bytes
    char32_t bits = 0;
    char32_t least = 0;
};

constexpr Lead LeadOf(unsigned char byte) {
    if (byte >= 0xC2 && byte < 0xE0)
        return {1, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return {2, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF5)
        return {3, byte & 0x07U, 0x10000};
    return {};
}

char TailOf(char32_t bits) {
    return static_cast<char>(0x80U | (bits & 0x3FU));
}

} // namespace

Utf8Character FirstCharacterOf(std::string_view text) noexcept {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80)
        return {first, 1, false};
    const Lead lead = LeadOf(first);
    if (lead.tails == 0 || text.size() <= lead.tails)
        return {};
    char32_t value = lead.bits;
    for (const char tail : text.substr(1, lead.tails)) {
        if (!IsInsideCharacter(tail))
            return {};
        value = value << 6U | (static_cast<unsigned char>(tail) & 0x3FU);
    }
    if (value < lead.least || !IsCharacter(value))
        return {};
    return {value, lead.tails + 1, false};
}

void AppendCharacter(std::string& text, char32_t character) {
    if (!IsCharacter(character))
        character = kReplacementCharacter;
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | character >> 6U);
        text += TailOf(character);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0U | character >> 12U);
        text += TailOf(character >> 6U);
        text += TailOf(character);
    } else {
        text += static_cast<char>(0xF0U | character >> 18U);
        text += TailOf(character >> 12U);
        text += TailOf(character >> 6U);
        text += TailOf(character);
    }
}

bool IsValidUtf8(std::string_view text) noexcept {
    constexpr std::size_t kPiece = 64;
    while (!text.empty()) {
        if (IsAscii(text.substr(0, kPiece))) {
            text.remove_prefix(std::min(kPiece, text.size()));
            continue;
        }
        const Utf8Character character = FirstCharacterOf(text);
        if (character.isBroken)
            return false;
        text.remove_prefix(character.length);
    }
    return true;
}
