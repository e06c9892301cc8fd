#include "common/CaseFolding.h"

#include "common/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

// Letters that fold by the same rule.  Of a range with steps of 2 only every second letter is
// folded: the capitals, where each stands before its small letter.
struct FoldedRange {
    char32_t first = 0;
    char32_t last = 0;
    std::uint32_t step = 1;
    std::int32_t distance = 0; // from a letter to what it folds to
};

// Ascending; ranges do not overlap.
constexpr FoldedRange kRanges[] = {
    {0x0041, 0x005A, 1, 32},   {0x00B5, 0x00B5, 1, 775},  {0x00C0, 0x00D6, 1, 32},
    {0x00D8, 0x00DE, 1, 32},   {0x0100, 0x012E, 2, 1},    {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},    {0x014A, 0x0176, 2, 1},    {0x0178, 0x0178, 1, -121},
    {0x0179, 0x017D, 2, 1},    {0x017F, 0x017F, 1, -268}, {0x0370, 0x0372, 2, 1},
    {0x0376, 0x0376, 1, 1},    {0x037F, 0x037F, 1, 116},  {0x0386, 0x0386, 1, 38},
    {0x0388, 0x038A, 1, 37},   {0x038C, 0x038C, 1, 64},   {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32},   {0x03A3, 0x03AB, 1, 32},   {0x03C2, 0x03C2, 1, 1},
    {0x03CF, 0x03CF, 1, 8},    {0x03D0, 0x03D0, 1, -30},  {0x03D1, 0x03D1, 1, -25},
    {0x03D5, 0x03D5, 1, -15},  {0x03D6, 0x03D6, 1, -22},  {0x03D8, 0x03EE, 2, 1},
    {0x03F0, 0x03F0, 1, -54},  {0x03F1, 0x03F1, 1, -48},  {0x03F4, 0x03F4, 1, -60},
    {0x03F5, 0x03F5, 1, -64},  {0x03F7, 0x03F7, 1, 1},    {0x03F9, 0x03F9, 1, -7},
    {0x03FA, 0x03FA, 1, 1},    {0x03FD, 0x03FF, 1, -130}, {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32},   {0x0460, 0x0480, 2, 1},    {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 15},   {0x04C1, 0x04CD, 2, 1},    {0x04D0, 0x052E, 2, 1},
    {0x1E9E, 0x1E9E, 1, -7615}};

char32_t Found(char32_t character) {
    const FoldedRange* range = std::ranges::find_if(
        kRanges, [character](const FoldedRange& each) { return character <= each.last; });
    if (range == std::end(kRanges) || character < range->first ||
        (character - range->first) % range->step != 0)
        return character;
    return character + static_cast<char32_t>(range->distance);
}

// All but the capital sharp s are below.
constexpr char32_t kEndOfTable = 0x0530;
using Table = std::array<char32_t, kEndOfTable>;

Table MakeTable() {
    Table table{};
    for (char32_t character = 0; character < kEndOfTable; ++character)
        table[character] = Found(character);
    return table;
}

constexpr std::array<char, 128> MakeAsciiTable() {
    std::array<char, 128> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + 'a' - 'A' : byte);
    return table;
}
constexpr std::array<char, 128> kAscii = MakeAsciiTable();

void AppendFolded(std::string& folded, std::string_view text) {
    while (!text.empty()) {
        const Utf8Character character = FirstCharacterOf(text);
        if (character.isBroken)
            folded += text.front();
        else
            AppendCharacter(folded, FoldCase(character.value));
        text.remove_prefix(character.length);
    }
}

} // namespace

char32_t FoldCase(char32_t character) noexcept {
    static const Table table = MakeTable();
    return character < kEndOfTable ? table[character] : Found(character);
}

void FoldCaseInto(std::string& folded, std::string_view text) {
    folded.resize(text.size());
    std::size_t place = 0;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte >= kAscii.size())
            break;
        folded[place++] = kAscii[byte];
    }
    if (place == text.size())
        return;
    folded.resize(place);
    AppendFolded(folded, text.substr(place));
}

std::string FoldCase(std::string_view text) {
    std::string folded;
    FoldCaseInto(folded, text);
    return folded;
}
