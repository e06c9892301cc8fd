#include "common/SingleByteTable.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kBasicPlane = 0x10000;
constexpr std::uint16_t kNoByte = 0x100;

struct CodePoint {
    std::uint32_t value = kBasicPlane;
    std::size_t length = 1;
};

std::uint32_t TailBits(char byte) {
    return static_cast<unsigned char>(byte) & 0x3FU;
}

bool IsTail(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The first character of a text that is not empty; beyond the basic plane when it is there, or when
// the text is broken.
CodePoint FirstOf(std::string_view utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    if (lead < 0x80U)
        return {lead, 1};
    if (lead >= 0xC2U && lead < 0xE0U && utf8.size() > 1 && IsTail(utf8[1]))
        return {(lead & 0x1FU) << 6U | TailBits(utf8[1]), 2};
    if (lead < 0xE0U || lead > 0xEFU || utf8.size() < 3 || !IsTail(utf8[1]) || !IsTail(utf8[2]))
        return {};
    const std::uint32_t value = (lead & 0x0FU) << 12U | TailBits(utf8[1]) << 6U | TailBits(utf8[2]);
    return value < 0x800U ? CodePoint{} : CodePoint{value, 3};
}

} // namespace

SingleByteTable::SingleByteTable(const std::function<std::string(unsigned char)>& characterOf,
                                 const std::function<bool(unsigned char)>& isStoredAs)
    : bytes_(kBasicPlane + 1, kNoByte) {
    for (std::size_t number = 0; number < characters_.size(); ++number) {
        const auto byte = static_cast<unsigned char>(number);
        const std::string utf8 = characterOf(byte);
        Character& character = characters_[number];
        character.length = static_cast<std::uint32_t>(std::min<std::size_t>(utf8.size(), 3));
        std::copy_n(utf8.begin(), character.length, character.bytes.begin());
        if (!utf8.empty() && isStoredAs(byte))
            bytes_[FirstOf(utf8).value] = byte;
    }
    bytes_[kBasicPlane] = kNoByte;
}

std::string SingleByteTable::Decode(std::string_view bytes) const {
    std::size_t length = 0;
    for (const char byte : bytes)
        length += characters_[static_cast<unsigned char>(byte)].length;
    // Each character is written with all its places; the next one overwrites what is too much.
    std::string text(length + sizeof(Character::bytes), '\0');
    char* place = text.data();
    for (const char byte : bytes) {
        const Character& character = characters_[static_cast<unsigned char>(byte)];
        std::memcpy(place, character.bytes.data(), character.bytes.size());
        place += character.length;
    }
    text.resize(length);
    return text;
}

std::optional<std::string> SingleByteTable::Encode(std::string_view utf8) const {
    std::string bytes(utf8.size(), '\0');
    char* place = bytes.data();
    while (!utf8.empty()) {
        const CodePoint character = FirstOf(utf8);
        const std::uint16_t byte = bytes_[character.value];
        if (byte == kNoByte)
            return std::nullopt;
        *place++ = static_cast<char>(byte);
        utf8.remove_prefix(character.length);
    }
    bytes.resize(static_cast<std::size_t>(place - bytes.data()));
    return bytes;
}
