#include "common/ColorNumber.h"

ColorNumber MakeColorNumber(int red, int green, int blue) noexcept {
    // Unsigned: a library file may hold any 16-bit numbers.
    return static_cast<ColorNumber>(red) + 256U * static_cast<ColorNumber>(green) +
           65536U * static_cast<ColorNumber>(blue);
}

RedGreenBlue SplitColorNumber(ColorNumber color) noexcept {
    const ColorNumber blue = (color & 0xFF0000U) / 65536U;
    const ColorNumber withoutBlue = (color & 0xFFFFFFU) - blue * 65536U;
    const ColorNumber green = (withoutBlue & ~ColorNumber{255}) / 256U;
    const ColorNumber red = withoutBlue - green * 256U;
    return {static_cast<int>(red), static_cast<int>(green), static_cast<int>(blue)};
}
