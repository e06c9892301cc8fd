#pragma once

#include <algorithm>
#include <cstdint>

// A color number as Windows keeps it: 0x00BBGGRR, red in the low byte.
using ColorNumber = std::uint32_t;

struct RedGreenBlue {
    int red = 0;   // 0..255
    int green = 0; // 0..255
    int blue = 0;  // 0..255

    bool operator==(const RedGreenBlue&) const = default;
};

// The two masks that turn a background into a text color.  They are different on purpose: the
// 20-bit mask inverts blue only in its low four bits.
inline constexpr ColorNumber kFullComplementMask = 0xFFFFFF;
inline constexpr ColorNumber kPartialComplementMask = 0xFFFFF;

// red, green, blue: 0..255 each; other numbers give some color number.
[[nodiscard]] ColorNumber MakeColorNumber(int red, int green, int blue) noexcept;
[[nodiscard]] inline ColorNumber MakeColorNumber(const RedGreenBlue& color) noexcept {
    return MakeColorNumber(color.red, color.green, color.blue);
}

// Splits a color number; bits above the third byte are ignored.
[[nodiscard]] RedGreenBlue SplitColorNumber(ColorNumber color) noexcept;

// As it is painted: what is beyond the range of a value counts as its end.
[[nodiscard]] constexpr RedGreenBlue PaintedColor(int red, int green, int blue) noexcept {
    return {std::clamp(red, 0, 255), std::clamp(green, 0, 255), std::clamp(blue, 0, 255)};
}
