#include "palettes/SwatchExchangeFile.h"

#include "common/ColorSpaces.h"
#include "common/PlainColorModels.h"
#include "palettes/ByteReader.h"
#include "palettes/ByteWriter.h"
#include "palettes/Utf16Text.h"

#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace SwatchExchangeFile {

namespace {

constexpr std::string_view kMagic = "ASEF";
constexpr std::uint16_t kMajorVersion = 1;
constexpr std::uint16_t kMinorVersion = 0;

constexpr std::uint16_t kGroupStart = 0xC001;
constexpr std::uint16_t kGroupEnd = 0xC002;
constexpr std::uint16_t kColor = 0x0001;
constexpr std::uint16_t kNormal = 2; // neither global nor spot

constexpr std::size_t kUnitSize = 2;
constexpr std::string_view kRgb = "RGB ";
constexpr float kHighest = 255;

using Components = std::array<float, 4>;

struct Range {
    float lowest = 0;
    float highest = 1;
};

// A color model of the format: its components and what they mean.
struct Model {
    std::string_view name;
    std::size_t count = 0;
    std::array<Range, 4> ranges{};
    RedGreenBlue (*toSrgb)(const Components&) = nullptr;
};

RedGreenBlue SrgbOfShares(const Components& shares) {
    const auto value = [](float share) { return static_cast<int>(std::lround(share * kHighest)); };
    return {value(shares[0]), value(shares[1]), value(shares[2])};
}

constexpr float kFullLightness = 100; // stands in the file as 1

constexpr Model kModels[] = {
    {kRgb, 3, {}, SrgbOfShares},
    {"CMYK",
     4,
     {},
     [](const Components& inks) {
         return SrgbOfCmyk({inks[0], inks[1], inks[2], inks[3]});
     }},
    {"LAB ",
     3,
     {{{0, 1}, {-128, 128}, {-128, 128}, {}}},
     [](const Components& lab) {
         return SrgbOfLab({lab[0] * kFullLightness, lab[1], lab[2]});
     }},
    {"Gray", 1, {}, [](const Components& share) { return SrgbOfGray(share[0]); }},
    {"GRAY", 1, {}, [](const Components& share) { return SrgbOfGray(share[0]); }},
};

const Model* ModelOf(std::string_view name) {
    for (const Model& model : kModels)
        if (model.name == name)
            return &model;
    return nullptr;
}

// What rounding has put beyond the end counts as the end; no number is not in any range.
bool BringIntoRange(float& value, const Range& range) {
    const float tolerance = (range.highest - range.lowest) / 1000;
    if (!(value >= range.lowest - tolerance && value <= range.highest + tolerance))
        return false;
    value = std::min(std::max(value, range.lowest), range.highest);
    return true;
}

std::string TakeName(ByteReader& block) {
    const std::size_t units = block.U16();
    return NameOfUtf16(block.Bytes(units * kUnitSize));
}

class BlockReader {
public:
    void Read(std::string_view bytes) {
        ByteReader file(bytes);
        static_cast<void>(file.Bytes(kMagic.size()));
        static_cast<void>(file.U32()); // the version: all that are known are alike
        const std::size_t claimed = file.U32();
        while (!file.HasFailed() && file.Left() > 0)
            ReadBlock(file);
        if (file.HasFailed())
            content_.Add(PaletteFault::Ends, number_);
        else if (number_ != claimed)
            content_.Add(PaletteFault::Count, number_);
    }

    [[nodiscard]] PaletteContent Take() { return std::move(content_); }

private:
    void ReadBlock(ByteReader& file) {
        ++number_;
        const std::uint16_t type = file.U16();
        const std::size_t length = file.U32();
        ByteReader block(file.Bytes(length));
        if (file.HasFailed())
            return;
        if (type == kColor)
            ReadColor(block);
        else if (type == kGroupStart)
            StartGroup(block);
        else if (type == kGroupEnd)
            group_ = kNoGroup;
        else
            content_.Add(PaletteFault::Unreadable, number_);
    }

    void StartGroup(ByteReader& block) {
        std::string name = TakeName(block);
        if (block.HasFailed())
            content_.Add(PaletteFault::Unreadable, number_);
        group_ = content_.AddGroup(std::move(name), number_);
    }

    void ReadColor(ByteReader& block) {
        PaletteEntry entry;
        entry.name = TakeName(block);
        entry.group = group_;
        const std::string_view name = block.Bytes(kRgb.size());
        if (block.HasFailed())
            return content_.Add(PaletteFault::Unreadable, number_);
        const Model* model = ModelOf(name);
        if (model == nullptr)
            return content_.Add(PaletteFault::UnknownModel, number_);
        ReadComponents(block, *model, std::move(entry));
    }

    void ReadComponents(ByteReader& block, const Model& model, PaletteEntry&& entry) {
        Components components{};
        bool isInRange = true;
        for (std::size_t index = 0; index < model.count; ++index) {
            components[index] = block.Float();
            isInRange = BringIntoRange(components[index], model.ranges[index]) && isInRange;
        }
        if (block.HasFailed())
            return content_.Add(PaletteFault::Unreadable, number_);
        if (!isInRange)
            return content_.Add(PaletteFault::OutOfRange, number_);
        entry.SetColor(model.toSrgb(components));
        content_.AddEntry(std::move(entry), number_);
    }

    PaletteContent content_;
    PaletteGroup group_ = kNoGroup;
    std::size_t number_ = 0;
};

// A name in the form of the file, with its length and the zero at its end.
std::string NameBlock(std::string_view name, std::size_t& changed) {
    const std::string_view kept = NameWithinLimit(name.substr(0, name.find('\0')));
    changed += kept == name ? 0 : 1;
    const std::string units = Utf16OfUtf8(kept);
    ByteWriter block;
    block.U16(static_cast<std::uint16_t>(units.size() / kUnitSize + 1));
    block.Bytes(units);
    block.U16(0);
    return block.Take();
}

class BlockWriter {
public:
    void Write(const Palette& palette) {
        losses_.paletteNames = palette.name.empty() ? 0 : 1;
        const std::vector<std::vector<const PaletteEntry*>> groups = Grouped(palette);
        WriteColors(groups.front());
        for (std::size_t group = 0; group < palette.groups.size(); ++group) {
            AppendBlock(kGroupStart, NameBlock(palette.groups[group], losses_.names));
            WriteColors(groups[group + 1]);
            AppendBlock(kGroupEnd, {});
        }
    }

    [[nodiscard]] PaletteWriting Take() {
        ByteWriter file;
        file.Bytes(kMagic);
        file.U16(kMajorVersion);
        file.U16(kMinorVersion);
        file.U32(count_);
        file.Bytes(blocks_.Take());
        return {file.Take(), losses_};
    }

private:
    // The first ones have no group.
    static std::vector<std::vector<const PaletteEntry*>> Grouped(const Palette& palette) {
        std::vector<std::vector<const PaletteEntry*>> groups(palette.groups.size() + 1);
        for (const PaletteEntry& entry : palette.entries)
            groups[entry.group == kNoGroup ? 0 : entry.group + 1].push_back(&entry);
        return groups;
    }

    void WriteColors(std::span<const PaletteEntry* const> entries) {
        for (const PaletteEntry* entry : entries) {
            ByteWriter block;
            block.Bytes(NameBlock(entry->name, losses_.names));
            block.Bytes(kRgb);
            for (std::size_t value = 0; value < 3; ++value)
                block.Float(static_cast<float>(entry->values[value]) / kHighest);
            block.U16(kNormal);
            AppendBlock(kColor, block.Take());
            losses_.values += entry->HasMaterial() ? 1 : 0;
        }
    }

    void AppendBlock(std::uint16_t type, std::string_view block) {
        blocks_.U16(type);
        blocks_.U32(static_cast<std::uint32_t>(block.size()));
        blocks_.Bytes(block);
        ++count_;
    }

    ByteWriter blocks_;
    std::uint32_t count_ = 0;
    PaletteLosses losses_;
};

} // namespace

bool IsOne(std::string_view bytes) noexcept {
    return bytes.starts_with(kMagic);
}

PaletteContent Read(std::string_view bytes) {
    BlockReader reader;
    reader.Read(bytes);
    return reader.Take();
}

PaletteWriting Write(const Palette& palette) {
    BlockWriter writer;
    writer.Write(palette);
    return writer.Take();
}

} // namespace SwatchExchangeFile
