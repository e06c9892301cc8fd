#include "convert/LibraryPalette.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

constexpr std::size_t kFirstMaterial = kColorValueCount - std::tuple_size_v<MaterialValues>;

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

void AddGroup(LibraryAsPalette& made, const ColorLibrary& library, const std::string& groupKey) {
    Palette& palette = made.palette;
    const auto group = static_cast<PaletteGroup>(palette.groups.size());
    palette.groups.push_back(library.Tree().At(groupKey).text);
    for (const int index : library.GetColorIndexInGroup(groupKey)) {
        const StoredColor& color = library.Colors().ViewAt(index).color;
        PaletteEntry& entry = palette.entries.emplace_back();
        entry.name = color.name.View();
        entry.group = group;
        made.changedColors += SetValues(entry, color.values) ? 1 : 0;
    }
}

ColorRecord ColorOf(const PaletteEntry& entry, const MaterialValues& material) {
    ColorRecord color;
    color.name = entry.name;
    color.values = entry.values;
    for (std::size_t value = kFirstMaterial; value < kColorValueCount; ++value)
        if (!entry.Has(value))
            color.values[value] = material[value - kFirstMaterial];
    return color;
}

// Those without a group come first.
std::vector<std::vector<ColorRecord>> ColorsByGroup(const Palette& palette,
                                                    const MaterialValues& material) {
    std::vector<std::vector<ColorRecord>> colors(palette.groups.size() + 1);
    for (const PaletteEntry& entry : palette.entries)
        colors[entry.group == kNoGroup ? 0 : entry.group + 1].push_back(ColorOf(entry, material));
    return colors;
}

} // namespace

LibraryAsPalette PaletteOfLibrary(const ColorLibrary& library, const std::string& mainKey) {
    LibraryAsPalette made;
    made.palette.name = library.Tree().At(mainKey).text;
    for (const std::string& groupKey : library.GetGroupInMainnode(mainKey))
        AddGroup(made, library, groupKey);
    return made;
}

std::string AddPalette(ColorLibrary& library, const Palette& palette, const NewLibrary& added) {
    std::string mainKey = library.NewMainNode(added.name);
    const std::vector<std::vector<ColorRecord>> colors = ColorsByGroup(palette, added.material);
    if (!colors.front().empty() || palette.groups.empty())
        library.AppendColors(library.NewGroupNode(mainKey, added.firstGroup), colors.front());
    for (std::size_t group = 0; group < palette.groups.size(); ++group)
        library.AppendColors(library.NewGroupNode(mainKey, palette.groups[group]),
                             colors[group + 1]);
    return mainKey;
}
