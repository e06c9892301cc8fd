#pragma once

#include "common/ColorRecord.h"
#include "library/ColorLibrary.h"
#include "palettes/Palette.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

// Between a library and a foreign palette.

// The six values behind red, green and blue, 0..100, in their order.
using MaterialValues = std::array<std::int16_t, 6>;

// What a color gets that came without material values.
inline constexpr MaterialValues kUsualMaterial = {100, 100, 100, 30, 0, 0};

struct LibraryAsPalette {
    Palette palette;
    std::size_t changedColors = 0; // with values beyond their range, which count as its end
};

// A main node with all of its groups and colors, in their order, and all nine values.  Throws
// RuntimeError SubscriptOutOfRange when there is no such node.
[[nodiscard]] LibraryAsPalette PaletteOfLibrary(const ColorLibrary& library,
                                                const std::string& mainKey);

struct NewLibrary {
    std::string name;
    std::string firstGroup; // of colors without a group, and when there is no group at all
    MaterialValues material = kUsualMaterial;
};

// Adds a palette as a library without a file, which is selected then; gives its key.  Colors
// without a group are in a group of their own, before the others; each value that the palette did
// not have is that of the material.  Names stay as they are, whatever a library file makes of them.
std::string AddPalette(ColorLibrary& library, const Palette& palette, const NewLibrary& added);
