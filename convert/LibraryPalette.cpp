#include "convert/LibraryPalette.h"

#include "common/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <tuple>
#include <vector>

namespace {

constexpr std::size_t kFirstMaterial = kColorValueCount - std::tuple_size_v<ColorMaterial>;

// Whether a value had to be brought into its range.
bool SetValues(PaletteEntry& entry, const ColorValueArray& values) {
    bool isChanged = false;
    for (std::size_t value = 0; value < kColorValueCount; ++value) {
        const int inRange = std::clamp<int>(values[value], 0, MaximumOfColorValue(value));
        entry.Set(value, static_cast<std::int16_t>(inRange));
        isChanged = isChanged || inRange != values[value];
    }
    return isChanged;
}

void AddColors(LibraryAsPalette& made, const ColorLibrary& library, const std::string& groupKey,
               PaletteGroup group) {
    for (const int index : library.GetColorIndexInGroup(groupKey)) {
        const StoredColor& color = library.Colors().ViewAt(index).color;
        PaletteEntry& entry = made.palette.entries.emplace_back();
        entry.name = color.name.View();
        entry.group = group;
        made.changedColors += SetValues(entry, color.values) ? 1 : 0;
    }
}

std::string HexText(const RedGreenBlue& color) {
    std::array<char, 32> text{};
    static_cast<void>(
        std::snprintf(text.data(), text.size(), "#%02X%02X%02X", static_cast<unsigned>(color.red),
                      static_cast<unsigned>(color.green), static_cast<unsigned>(color.blue)));
    return text.data();
}

// All nine, with those of the material that the color comes without.
ColorValueArray WholeValues(const PaletteEntry& entry, const ColorMaterial& material) {
    ColorValueArray values = entry.values;
    for (std::size_t value = kFirstMaterial; value < kColorValueCount; ++value)
        if (!entry.Has(value))
            values[value] = material[value - kFirstMaterial];
    return values;
}

ColorRecord ColorOf(const PaletteEntry& entry, const ColorMaterial& material) {
    ColorRecord color;
    color.name = entry.name.empty() ? HexText(entry.Color()) : entry.name;
    color.values = WholeValues(entry, material);
    return color;
}

// Those without a group come first.
std::vector<std::vector<ColorRecord>> ColorsByGroup(const Palette& palette,
                                                    const ColorMaterial& material) {
    std::vector<std::vector<ColorRecord>> colors(palette.groups.size() + 1);
    for (const PaletteEntry& entry : palette.entries)
        colors[entry.group == kNoGroup ? 0 : entry.group + 1].push_back(ColorOf(entry, material));
    return colors;
}

} // namespace

LibraryAsPalette PaletteOfLibrary(const ColorLibrary& library, const std::string& mainKey) {
    LibraryAsPalette made;
    made.palette.name = library.Tree().At(mainKey).text;
    for (const std::string& groupKey : library.GetGroupInMainnode(mainKey)) {
        made.palette.groups.push_back(library.Tree().At(groupKey).text);
        AddColors(made, library, groupKey,
                  static_cast<PaletteGroup>(made.palette.groups.size() - 1));
    }
    return made;
}

LibraryAsPalette PaletteOfGroup(const ColorLibrary& library, const std::string& groupKey) {
    LibraryAsPalette made;
    made.palette.name = library.Tree().At(groupKey).text;
    AddColors(made, library, groupKey, kNoGroup);
    return made;
}

bool LacksMaterial(const Palette& palette) {
    return std::ranges::any_of(palette.entries, [](const PaletteEntry& entry) {
        for (std::size_t value = kFirstMaterial; value < kColorValueCount; ++value)
            if (!entry.Has(value))
                return true;
        return false;
    });
}

std::size_t CountOfNewGroups(const Palette& palette) {
    const bool hasFirstGroup =
        palette.groups.empty() ||
        std::ranges::find(palette.entries, kNoGroup, &PaletteEntry::group) != palette.entries.end();
    return palette.groups.size() + (hasFirstGroup ? 1 : 0);
}

void FillIn(Palette& palette, const ColorMaterial& material) {
    for (PaletteEntry& entry : palette.entries) {
        const ColorValueArray values = WholeValues(entry, material);
        for (std::size_t value = 0; value < kColorValueCount; ++value)
            entry.Set(value, values[value]);
    }
}

std::string AddPaletteGroups(ColorLibrary& library, const std::string& mainKey,
                             const Palette& palette, const NewGroups& added) {
    const std::vector<std::vector<ColorRecord>> colors = ColorsByGroup(palette, added.material);
    std::vector<std::string> names = palette.groups;
    names.insert(names.begin(), added.firstGroup);
    const std::size_t count = CountOfNewGroups(palette);
    const std::size_t first = names.size() - count;
    if (!library.AreNextGroupNumbersFree(mainKey, count))
        throw RuntimeError(ErrorNumber::DuplicateKey, ErrorTexts::GroupNumberTaken);
    std::string firstKey;
    for (std::size_t group = first; group < names.size(); ++group) {
        const std::string key = library.NewGroupNode(mainKey, names[group]);
        library.AppendColors(key, colors[group]);
        if (group == first)
            firstKey = key;
    }
    return firstKey;
}

std::string AddPalette(ColorLibrary& library, const Palette& palette, const NewLibrary& added) {
    std::string mainKey = library.NewMainNode(added.name);
    AddPaletteGroups(library, mainKey, palette,
                     {.firstGroup = added.firstGroup, .material = added.material});
    return mainKey;
}
