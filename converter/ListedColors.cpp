#include "converter/ListedColors.h"

#include <array>

namespace {

constexpr unsigned char kBlank = 0x20;
constexpr unsigned char kDelete = 0x7F;

std::string InHexadecimal(unsigned char control) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return {'\\', 'x', kDigits[control >> 4U], kDigits[control & 0xFU]};
}

std::string Spelled(char letter) {
    const auto unit = static_cast<unsigned char>(letter);
    switch (letter) {
    case '\t':
        return "\\t";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\\':
        return "\\\\";
    default:
        return unit < kBlank || unit == kDelete ? InHexadecimal(unit) : std::string(1, letter);
    }
}

void AppendLine(std::string& text, const Palette& palette, const PaletteEntry& entry) {
    if (entry.group != kNoGroup)
        text += OnALine(palette.groups[entry.group]);
    text.append("\t").append(OnALine(entry.name));
    for (std::size_t value = 0; value < kColorValueCount; ++value)
        text.append("\t").append(entry.Has(value) ? std::to_string(entry.values[value]) : "");
    text += '\n';
}

} // namespace

std::string OnALine(std::string_view name) {
    std::string text;
    for (const char letter : name)
        text += Spelled(letter);
    return text;
}

std::string ListedColors(const Palette& palette) {
    std::string text;
    for (const PaletteEntry& entry : palette.entries)
        AppendLine(text, palette, entry);
    return text;
}
