#include "palettes/SwatchExchangeFile.h"

#include "common/ColorSpaces.h"
#include "common/PlainColorModels.h"
#include "palettes/ByteReader.h"
#include "palettes/ByteWriter.h"
#include "palettes/Utf16Text.h"

#include <algorithm>
#include <array>
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
constexpr std::size_t kLeastColorSize = 16; // a block of gray without a name or a kind

// Four letters as the number that they are in the file.
constexpr std::uint32_t FourLetters(std::string_view letters) {
    std::uint32_t number = 0;
    for (const char letter : letters)
        number = number << 8U | static_cast<unsigned char>(letter);
    return number;
}
constexpr std::uint32_t kRgb = FourLetters("RGB ");
constexpr float kHighest = 255;
constexpr float kHalf = 0.5F; // rounds what is not negative

using Components = std::array<float, 4>;

struct Range {
    float lowest = 0;
    float highest = 1;
};

// A color model of the format: its components and what they mean.
struct Model {
    std::uint32_t name = 0;
    std::size_t count = 0;
    std::array<Range, 4> ranges{};
    RedGreenBlue (*toSrgb)(const Components&) = nullptr;
};

RedGreenBlue SrgbOfShares(const Components& shares) {
    const auto value = [](float share) { return static_cast<int>(share * kHighest + kHalf); };
    return {value(shares[0]), value(shares[1]), value(shares[2])};
}

constexpr float kFullLightness = 100; // stands in the file as 1

constexpr Model kModels[] = {
    {kRgb, 3, {}, SrgbOfShares},
    {FourLetters("CMYK"),
     4,
     {},
     [](const Components& inks) {
         return SrgbOfCmyk({inks[0], inks[1], inks[2], inks[3]});
     }},
    {FourLetters("LAB "),
     3,
     {{{0, 1}, {-128, 128}, {-128, 128}, {}}},
     [](const Components& lab) {
         return SrgbOfLab({lab[0] * kFullLightness, lab[1], lab[2]});
     }},
    {FourLetters("Gray"), 1, {}, [](const Components& share) { return SrgbOfGray(share[0]); }},
    {FourLetters("GRAY"), 1, {}, [](const Components& share) { return SrgbOfGray(share[0]); }},
};

const Model* ModelOf(std::uint32_t name) {
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

std::string_view TakeName(ByteReader& block) {
    const std::size_t units = block.U16();
    return block.Bytes(units * kUnitSize);
}

// The components of a color whose model is known; the fault that they have.
std::optional<PaletteFault> TakeComponents(ByteReader& block, const Model& model,
                                           Components& components) {
    bool isInRange = true;
    for (std::size_t index = 0; index < model.count; ++index) {
        components[index] = block.Float();
        isInRange = BringIntoRange(components[index], model.ranges[index]) && isInRange;
    }
    if (block.HasFailed())
        return PaletteFault::Unreadable;
    if (!isInRange)
        return PaletteFault::OutOfRange;
    return {};
}

class BlockReader {
public:
    void Read(std::string_view bytes) {
        ByteReader file(bytes);
        static_cast<void>(file.Bytes(kMagic.size()));
        static_cast<void>(file.U32()); // the version: all that are known are alike
        const std::size_t claimed = file.U32();
        content_.Expect(std::min(claimed, file.Left() / kLeastColorSize));
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
        std::string name;
        SetNameOfUtf16(name, TakeName(block));
        if (block.HasFailed())
            content_.Add(PaletteFault::Unreadable, number_);
        group_ = content_.AddGroup(std::move(name), number_);
    }

    void ReadColor(ByteReader& block) {
        const std::string_view name = TakeName(block);
        const std::uint32_t modelName = block.U32();
        if (block.HasFailed())
            return content_.Add(PaletteFault::Unreadable, number_);
        const Model* model = ModelOf(modelName);
        if (model == nullptr)
            return content_.Add(PaletteFault::UnknownModel, number_);
        Components components{};
        if (const std::optional<PaletteFault> fault = TakeComponents(block, *model, components))
            return content_.Add(*fault, number_);
        AddColor(name, model->toSrgb(components));
    }

    void AddColor(std::string_view name, const RedGreenBlue& color) {
        PaletteEntry* entry = content_.StartEntry(number_);
        if (entry == nullptr)
            return;
        entry->group = group_;
        entry->SetColor(color);
        SetNameOfUtf16(entry->name, name);
        content_.KeepEntry(number_);
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
            block.U32(kRgb);
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
