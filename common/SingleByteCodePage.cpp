#include "common/SingleByteCodePage.h"

#include "common/Text.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

constexpr std::size_t kBasicPlane = 0x10000;
constexpr std::uint16_t kNoByte = 0x100;
constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD

struct CodePoint {
    std::uint32_t value = kBasicPlane; // this for all beyond the basic plane
    std::size_t length = 1;            // in bytes
    bool isBroken = false;
};

std::uint32_t TailBits(char byte) {
    return static_cast<unsigned char>(byte) & 0x3FU;
}

bool HasTails(std::string_view utf8, std::size_t count) {
    const std::string_view tails = utf8.substr(1, count);
    return tails.size() == count && std::ranges::all_of(tails, IsInsideCharacter);
}

CodePoint Checked(CodePoint character, bool isWhole, std::uint32_t least) {
    if (isWhole && character.value >= least)
        return character;
    return {kBasicPlane, 1, true};
}

// The first character of a text that is not empty.
CodePoint FirstOf(std::string_view utf8) {
    const std::uint32_t lead = static_cast<unsigned char>(utf8.front());
    if (lead < 0x80U)
        return {lead, 1};
    if (lead < 0xE0U) {
        const bool isWhole = HasTails(utf8, 1);
        return Checked({(lead & 0x1FU) << 6U | (isWhole ? TailBits(utf8[1]) : 0U), 2},
                       isWhole && lead >= 0xC0U, 0x80U);
    }
    if (lead < 0xF0U) {
        const bool isWhole = HasTails(utf8, 2);
        const std::uint32_t tails = isWhole ? TailBits(utf8[1]) << 6U | TailBits(utf8[2]) : 0U;
        return Checked({(lead & 0x0FU) << 12U | tails, 3}, isWhole, 0x800U);
    }
    return Checked({kBasicPlane, 4}, lead < 0xF8U && HasTails(utf8, 3), 0);
}

// Eight bytes at a time, the first one in the lowest bits.
constexpr std::size_t kWordSize = sizeof(std::uint64_t);
static_assert(std::endian::native == std::endian::little);

// The highest bit of each byte that is no ASCII.
std::uint64_t BeyondAscii(std::string_view word) {
    std::uint64_t value = 0;
    std::memcpy(&value, word.data(), kWordSize);
    return value & 0x8080808080808080U;
}

bool IsBeyondAscii(char byte) {
    return static_cast<unsigned char>(byte) >= 0x80U;
}

std::size_t CountBeyondAscii(std::string_view bytes) {
    std::size_t count = 0;
    for (; bytes.size() >= kWordSize; bytes.remove_prefix(kWordSize))
        count += BeyondAscii(bytes) / 0x80U * 0x0101010101010101U >> 56U; // the sum of the bytes
    return count + static_cast<std::size_t>(std::ranges::count_if(bytes, IsBeyondAscii));
}

// Copies the ASCII characters at the beginning of a text, at most a word; gives their number.  The
// target has room for a word.
std::size_t CopyAscii(std::string_view bytes, char* target) {
    if (bytes.size() < kWordSize) {
        const auto end = std::ranges::find_if(bytes, IsBeyondAscii);
        return static_cast<std::size_t>(std::copy(bytes.begin(), end, target) - target);
    }
    std::memcpy(target, bytes.data(), kWordSize);
    return static_cast<std::size_t>(std::countr_zero(BeyondAscii(bytes))) / 8;
}

void AddOnce(std::string& characters, std::string_view character) {
    if (characters.find(character) == std::string::npos)
        characters += character;
}

} // namespace

SingleByteCodePage::SingleByteCodePage(const std::function<std::string(unsigned char)>& characterOf,
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
    for (std::size_t ascii = 0; ascii < 0x80; ++ascii)
        isAsciiPlain_ = isAsciiPlain_ && characters_[ascii].length == 1 &&
                        characters_[ascii].bytes[0] == static_cast<char>(ascii);
}

std::string SingleByteCodePage::Decode(std::string_view bytes) const {
    // Room for the most that it can become, and for the word that is written last.
    const std::size_t longer = isAsciiPlain_ ? CountBeyondAscii(bytes) : bytes.size();
    std::string text(bytes.size() + 2 * longer + kWordSize, '\0');
    char* place = text.data();
    while (!bytes.empty()) {
        if (isAsciiPlain_) {
            const std::size_t plain = CopyAscii(bytes, place);
            place += plain;
            bytes.remove_prefix(plain);
            if (plain == kWordSize || bytes.empty())
                continue;
        }
        // Written with all its places; the next one overwrites what is too much.
        const Character& character = characters_[static_cast<unsigned char>(bytes.front())];
        std::memcpy(place, character.bytes.data(), character.bytes.size());
        place += character.length;
        bytes.remove_prefix(1);
    }
    text.resize(static_cast<std::size_t>(place - text.data()));
    return text;
}

AnsiCodePage::Encoded SingleByteCodePage::Encode(std::string_view utf8) const {
    Encoded encoded{std::string(utf8.size(), '?'), {}};
    std::size_t count = 0;
    while (!utf8.empty()) {
        const auto first = static_cast<unsigned char>(utf8.front());
        const CodePoint character = first < 0x80U ? CodePoint{first} : FirstOf(utf8);
        const std::uint16_t byte = bytes_[character.value];
        if (byte != kNoByte)
            encoded.bytes[count] = static_cast<char>(byte);
        else
            AddOnce(encoded.unstored,
                    character.isBroken ? kReplacement : utf8.substr(0, character.length));
        ++count;
        utf8.remove_prefix(character.length);
    }
    encoded.bytes.resize(count);
    return encoded;
}
