#include "palettes/AdobeColorFile.h"

#include "common/ColorSpaces.h"
#include "common/PlainColorModels.h"
#include "palettes/ByteReader.h"
#include "palettes/ByteWriter.h"
#include "palettes/PaletteLimits.h"
#include "palettes/Utf16Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <utility>

namespace AdobeColorFile {

namespace {

constexpr std::uint16_t kWithoutNames = 1; // versions of a section
constexpr std::uint16_t kWithNames = 2;
constexpr std::size_t kVersionSize = 2;

enum Model : std::uint16_t { Rgb = 0, Hsb = 1, Cmyk = 2, Lab = 7, Grayscale = 8 };

constexpr std::size_t kUnitSize = 2;
constexpr std::size_t kSwatchSize = 10; // without its name
constexpr double kHighest = 0xFFFF;
constexpr std::uint16_t kUnitsOfAValue = 257; // 65535 is 255
constexpr double kMostGray = 10000;
constexpr double kMostLightness = 10000;
constexpr double kHundredths = 100; // of which lightness, a and b are made
constexpr double kMostChroma = 12800;
constexpr double kDegrees = 360;

using Components = std::array<std::uint16_t, 4>;

double Share(std::uint16_t component) {
    return component / kHighest;
}

std::optional<RedGreenBlue> SrgbOfLabWords(const Components& words) {
    const auto a = static_cast<std::int16_t>(words[1]);
    const auto b = static_cast<std::int16_t>(words[2]);
    if (words[0] > kMostLightness || std::abs(a) > kMostChroma || std::abs(b) > kMostChroma)
        return {};
    return SrgbOfLab({words[0] / kHundredths, a / kHundredths, b / kHundredths});
}

std::optional<RedGreenBlue> SrgbOfGrayWord(std::uint16_t word) {
    if (word > kMostGray)
        return {};
    return SrgbOfGray(word / kMostGray);
}

RedGreenBlue SrgbOfWords(const Components& words) {
    const auto value = [](std::uint16_t word) {
        return (word + kUnitsOfAValue / 2) / kUnitsOfAValue;
    };
    return {value(words[0]), value(words[1]), value(words[2])};
}

// 0 is full ink.
double Ink(std::uint16_t word) {
    return 1 - Share(word);
}

bool IsKnown(std::uint16_t model) {
    return model <= Model::Cmyk || model == Model::Lab || model == Model::Grayscale;
}

// Nothing when a component is beyond its range.
std::optional<RedGreenBlue> SrgbOf(std::uint16_t model, const Components& words) {
    switch (model) {
    case Model::Hsb:
        return SrgbOfHsb({Share(words[0]) * kDegrees, Share(words[1]), Share(words[2])});
    case Model::Cmyk:
        return SrgbOfCmyk({Ink(words[0]), Ink(words[1]), Ink(words[2]), Ink(words[3])});
    case Model::Lab:
        return SrgbOfLabWords(words);
    case Model::Grayscale:
        return SrgbOfGrayWord(words[0]);
    default:
        return SrgbOfWords(words);
    }
}

// A color as it stands in a section.
struct Swatch {
    std::uint16_t model = 0;
    Components words{};
    std::string_view name; // UTF-16
};

Swatch TakeSwatch(ByteReader& section, bool hasName) {
    Swatch swatch;
    swatch.model = section.U16();
    for (std::uint16_t& word : swatch.words)
        word = section.U16();
    if (hasName) {
        const std::size_t units = section.U32();
        swatch.name = section.Bytes(units * kUnitSize);
    }
    return swatch;
}

void AddSwatch(const Swatch& swatch, std::size_t number, PaletteContent& content) {
    if (!IsKnown(swatch.model))
        return content.Add(PaletteFault::UnknownModel, number);
    const std::optional<RedGreenBlue> color = SrgbOf(swatch.model, swatch.words);
    if (!color)
        return content.Add(PaletteFault::OutOfRange, number);
    PaletteEntry* entry = content.StartEntry(number);
    if (entry == nullptr)
        return;
    entry->SetColor(*color);
    SetNameOfUtf16(entry->name, swatch.name);
    content.KeepEntry(number);
}

bool IsVersion(std::string_view bytes, std::uint16_t version) {
    return ByteReader(bytes).U16() == version && bytes.size() >= kVersionSize;
}

// Adds the colors of both sections, which are the same ones: those of the second one have names.
// Where it ends early, the rest comes from the first one.
class SectionReader {
public:
    explicit SectionReader(std::string_view bytes) noexcept : bytes_(bytes) {}

    void Read() {
        const std::string_view second = BehindFirst();
        if (IsVersion(second, kWithNames))
            ReadSection(second);
        else
            hasRest_ = !second.empty();
        const std::size_t named = number_;
        const bool isNamedWhole = named > 0 && !endsEarly_;
        ReadSection(bytes_);
        if (isNamedWhole && named != number_)
            content_.Add(PaletteFault::Count, number_);
        if (endsEarly_)
            content_.Add(PaletteFault::Ends, number_ + 1);
        if (hasRest_)
            content_.Add(PaletteFault::Rest, number_);
    }

    [[nodiscard]] PaletteContent Take() { return std::move(content_); }

private:
    // What follows a whole section of version 1, whose colors have all the same size.
    [[nodiscard]] std::string_view BehindFirst() const noexcept {
        ByteReader section(bytes_);
        if (section.U16() != kWithoutNames)
            return {};
        const std::size_t count = section.U16();
        static_cast<void>(section.Bytes(count * kSwatchSize));
        return bytes_.substr(bytes_.size() - section.Left());
    }

    // Adds the colors of a section behind those that are there already.
    void ReadSection(std::string_view bytes) {
        ByteReader section(bytes);
        const bool hasNames = section.U16() == kWithNames;
        const std::size_t count = section.U16();
        content_.Expect(std::min(count, section.Left() / kSwatchSize));
        for (std::size_t number = 1; number <= count && !section.HasFailed(); ++number) {
            const Swatch swatch = TakeSwatch(section, hasNames);
            if (!section.HasFailed() && number > number_)
                AddSwatch(swatch, number_ = number, content_);
        }
        endsEarly_ = endsEarly_ || section.HasFailed();
        hasRest_ = hasRest_ || (hasNames && section.Left() > 0);
    }

    std::string_view bytes_;
    PaletteContent content_;
    std::size_t number_ = 0; // of the last color
    bool endsEarly_ = false;
    bool hasRest_ = false;
};

std::string NameUnits(std::string_view name, std::size_t& changed) {
    const std::string_view kept = NameWithinLimit(name.substr(0, name.find('\0')));
    changed += kept == name ? 0 : 1;
    return Utf16OfUtf8(kept);
}

void AppendSwatch(ByteWriter& file, const PaletteEntry& entry) {
    file.U16(Model::Rgb);
    for (std::size_t value = 0; value < 3; ++value)
        file.U16(static_cast<std::uint16_t>(entry.values[value] * kUnitsOfAValue));
    file.U16(0);
}

void AppendName(ByteWriter& file, const std::string& units) {
    file.U32(static_cast<std::uint32_t>(units.size() / kUnitSize + 1));
    file.Bytes(units);
    file.U16(0);
}

} // namespace

bool IsOne(std::string_view bytes) noexcept {
    return IsVersion(bytes, kWithoutNames) || IsVersion(bytes, kWithNames);
}

PaletteContent Read(std::string_view bytes) {
    SectionReader reader(bytes);
    reader.Read();
    return reader.Take();
}

PaletteWriting Write(const Palette& palette) {
    const std::size_t count =
        std::min(palette.entries.size(), PaletteLimits::kMostOfAnAdobeColorFile);
    const std::span entries = std::span(palette.entries).first(count);
    PaletteLosses losses;
    losses.paletteNames = palette.name.empty() ? 0 : 1;
    losses.groups = palette.groups.size();
    losses.entries = palette.entries.size() - count;
    ByteWriter file;
    file.U16(kWithoutNames);
    file.U16(static_cast<std::uint16_t>(count));
    for (const PaletteEntry& entry : entries)
        AppendSwatch(file, entry);
    file.U16(kWithNames);
    file.U16(static_cast<std::uint16_t>(count));
    for (const PaletteEntry& entry : entries) {
        AppendSwatch(file, entry);
        AppendName(file, NameUnits(entry.name, losses.names));
        losses.values += entry.HasMaterial() ? 1 : 0;
    }
    return {file.Take(), losses};
}

} // namespace AdobeColorFile
