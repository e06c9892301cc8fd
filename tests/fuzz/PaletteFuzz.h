#pragma once

#include "palettes/PaletteFormat.h"
#include "palettes/PaletteLimits.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fuzz/Require.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

inline void RequireWithinLimits(const Palette& palette) {
    Require(palette.entries.size() <= PaletteLimits::kMostEntries);
    Require(palette.groups.size() <= PaletteLimits::kMostGroups);
    for (const PaletteEntry& entry : palette.entries) {
        Require(entry.name.size() <= PaletteLimits::kLongestName);
        Require(entry.group == kNoGroup || entry.group < palette.groups.size());
        for (std::size_t value = 0; value < kColorValueCount; ++value)
            Require(entry.values[value] >= 0 && entry.values[value] <= MaximumOfColorValue(value));
    }
}

// Every color with the name of its group, sorted: a format may have an order of its own.
inline std::vector<std::tuple<std::string, std::string, ColorValueArray>>
ColorsOf(const Palette& palette) {
    std::vector<std::tuple<std::string, std::string, ColorValueArray>> colors;
    for (const PaletteEntry& entry : palette.entries)
        colors.emplace_back(entry.group == kNoGroup ? std::string() : palette.groups[entry.group],
                            entry.name, entry.values);
    std::ranges::sort(colors);
    return colors;
}

// Any bytes as a file: a palette within the limits or none; written in the format, what was said to
// be held comes back, and a second time the bytes are the same.
inline void FuzzPalette(const std::string& bytes, PaletteFormat format) {
    static const FakeCodePage codePage = FakeCodePage::Western();
    const PaletteReading reading = ReadPalette(bytes, codePage);
    Require(reading.format || (reading.palette == Palette() && reading.faults.IsNothing()));
    RequireWithinLimits(reading.palette);
    const PaletteWriting first = WritePalette(reading.palette, format);
    const PaletteReading again = ReadPalette(first.bytes, codePage);
    Require(again.format == format);
    if (first.losses.IsNothing())
        Require(ColorsOf(again.palette) == ColorsOf(reading.palette));
    // U+FFFD counts as a broken name each time.
    Require(again.faults.Of(PaletteFault::Unreadable).count == 0);
    Require(again.faults.Of(PaletteFault::Ends).count == 0);
    Require(WritePalette(again.palette, format).bytes == first.bytes);
}
