#include "palettes/GimpPaletteFile.h"

#include "palettes/PaletteText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

namespace GimpPaletteFile {

namespace {

constexpr std::string_view kMagic = "GIMP Palette";
constexpr std::string_view kName = "Name:";
constexpr std::string_view kColumns = "Columns:";
constexpr int kHighestValue = 255;

bool IsBlank(char letter) {
    return letter == ' ' || letter == '\t';
}

bool IsComment(std::string_view line) {
    return line.starts_with('#');
}

// The whole number that a text begins with, behind blanks; the text moves behind it.
std::optional<int> TakeNumber(std::string_view& text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc())
        return {};
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

bool IsInRange(int value) {
    return value >= 0 && value <= kHighestValue;
}

// A number ends at a blank or with the line.
bool EndsNumber(std::string_view rest) {
    return rest.empty() || IsBlank(rest.front());
}

std::optional<PaletteFault> ReadValues(std::string_view& line, PaletteEntry& entry) {
    for (std::size_t value = 0; value < 3; ++value) {
        const std::optional<int> read = TakeNumber(line);
        if (!read || !EndsNumber(line))
            return PaletteFault::Unreadable;
        if (!IsInRange(*read))
            return PaletteFault::OutOfRange;
        entry.values[value] = static_cast<std::int16_t>(*read);
    }
    return {};
}

void ReadColor(std::string_view line, std::size_t number, PaletteContent& content) {
    PaletteEntry* entry = content.StartEntry(number);
    if (entry == nullptr)
        return;
    if (const std::optional<PaletteFault> fault = ReadValues(line, *entry)) {
        content.DropEntry();
        return content.Add(*fault, number);
    }
    entry->name = WithoutBlanksAround(line);
    content.KeepEntry(number);
}

// Name and columns stand before the colors; how many columns a window shows means nothing here.
bool ReadHeader(std::string_view line, std::size_t number, PaletteContent& content) {
    if (!content.palette.entries.empty())
        return false;
    if (line.starts_with(kName)) {
        content.palette.name = WithoutBlanksAround(line.substr(kName.size()));
        content.CheckName(content.palette.name, number);
        return true;
    }
    return line.starts_with(kColumns);
}

// A name as it stands on a line: no line breaks, no blanks around it.
std::string NameOnALine(std::string_view name, std::size_t& changed) {
    std::string onALine(WithoutBlanksAround(NameWithinLimit(name)));
    std::ranges::replace_if(
        onALine, [](char letter) { return letter == '\r' || letter == '\n'; }, ' ');
    onALine = WithoutBlanksAround(onALine);
    changed += onALine == name ? 0 : 1;
    return onALine;
}

void AppendColor(std::string& bytes, const PaletteEntry& entry) {
    constexpr std::size_t kRoom = 32; // three numbers of 16 bits
    std::array<char, kRoom> numbers{};
    const int length = std::snprintf(numbers.data(), numbers.size(), "%3d %3d %3d", entry.values[0],
                                     entry.values[1], entry.values[2]);
    bytes.append(numbers.data(), static_cast<std::size_t>(length));
}

} // namespace

bool IsOne(std::string_view text) noexcept {
    return text.starts_with(kMagic);
}

PaletteContent Read(std::string_view text) {
    PaletteContent content;
    content.Expect(EstimateLines(text));
    PaletteLines lines(text);
    static_cast<void>(lines.Next()); // the magic one
    while (const std::optional<std::string_view> line = lines.Next()) {
        if (IsComment(*line) || WithoutBlanksAround(*line).empty() ||
            ReadHeader(*line, lines.Number(), content))
            continue;
        ReadColor(*line, lines.Number(), content);
    }
    return content;
}

PaletteWriting Write(const Palette& palette) {
    PaletteWriting writing;
    writing.losses.groups = palette.groups.size();
    std::size_t changedName = 0;
    writing.bytes.append(kMagic).append("\nName: ");
    writing.bytes.append(NameOnALine(palette.name, changedName)).append("\nColumns: 0\n#\n");
    writing.losses.paletteNames = changedName;
    for (const PaletteEntry& entry : palette.entries) {
        AppendColor(writing.bytes, entry);
        const std::string name = NameOnALine(entry.name, writing.losses.names);
        if (!name.empty())
            writing.bytes.append("\t").append(name);
        writing.bytes.append("\n");
        writing.losses.values += entry.HasMaterial() ? 1 : 0;
    }
    return writing;
}

} // namespace GimpPaletteFile
