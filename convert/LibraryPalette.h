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
using ColorMaterial = std::array<std::int16_t, 6>;

// What a color gets that came without material values.
inline constexpr ColorMaterial kUsualMaterial = {100, 100, 100, 30, 0, 0};

struct LibraryAsPalette {
    Palette palette;
    std::size_t changedColors = 0; // with values beyond their range, which count as its end
};

// A main node with all of its groups and colors, in their order, and all nine values.  Throws
// RuntimeError SubscriptOutOfRange when there is no such node.
[[nodiscard]] LibraryAsPalette PaletteOfLibrary(const ColorLibrary& library,
                                                const std::string& mainKey);

// A group alone, as a palette of its name without groups; the same otherwise.
[[nodiscard]] LibraryAsPalette PaletteOfGroup(const ColorLibrary& library,
                                              const std::string& groupKey);

// Whether a color of the palette comes without some of its material values.
[[nodiscard]] bool LacksMaterial(const Palette& palette);

// How many groups a palette has in a library.
[[nodiscard]] std::size_t CountOfNewGroups(const Palette& palette);

// Gives each color the material values that it comes without.
void FillIn(Palette& palette, const ColorMaterial& material);

struct NewGroups {
    std::string firstGroup; // of colors without a group, and when there is no group at all
    ColorMaterial material = kUsualMaterial;
};

// Adds a palette's groups to a library, behind its own; gives the key of the first one.  Colors
// without a group are in a group of their own, before the others.  Each value that the palette did
// not have is that of the material, and a color without a name is called "#RRGGBB".  Other names
// stay as they are, whatever a library file makes of them.  Throws RuntimeError DuplicateKey when
// one of the groups' numbers is taken; nothing has changed then.
std::string AddPaletteGroups(ColorLibrary& library, const std::string& mainKey,
                             const Palette& palette, const NewGroups& added);

struct NewLibrary {
    std::string name;
    std::string firstGroup{};
    ColorMaterial material = kUsualMaterial;
};

// Adds a palette as a library without a file, which is selected then; gives its key.  For the rest
// as above.
std::string AddPalette(ColorLibrary& library, const Palette& palette, const NewLibrary& added);
