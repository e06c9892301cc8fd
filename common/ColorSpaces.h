#pragma once

#include "common/ColorNumber.h"

// Conversions between the colors of a screen and those of colorimetry.  Sources: IEC 61966-2-1:1999
// (sRGB: its transfer function and its matrix), CIE 15:2004 (CIELAB).

// Amounts of light, relative to white: 0..1 inside the gamut of sRGB.
struct LinearColor {
    double red = 0;
    double green = 0;
    double blue = 0;
};

// CIE XYZ of the 2 degree observer; Y of white is 1.  White is D65, as sRGB has it.
struct XyzColor {
    double x = 0;
    double y = 0;
    double z = 0;
};

// CIELAB: lightness 0..100; a from green to red, b from blue to yellow.
struct LabColor {
    double lightness = 0;
    double a = 0;
    double b = 0;
};

// value: 0..255 of an sRGB color; others count as the nearest of these.
[[nodiscard]] double LinearOfSrgb(int value) noexcept;
[[nodiscard]] LinearColor LinearOfSrgb(const RedGreenBlue& color) noexcept;

// What is outside of the gamut is cut, each of the three for itself.
[[nodiscard]] RedGreenBlue SrgbOfLinear(const LinearColor& color) noexcept;

[[nodiscard]] XyzColor XyzOfLinear(const LinearColor& color) noexcept;
[[nodiscard]] LinearColor LinearOfXyz(const XyzColor& color) noexcept;

[[nodiscard]] LabColor LabOfXyz(const XyzColor& color) noexcept;
[[nodiscard]] XyzColor XyzOfLab(const LabColor& color) noexcept;

// All the way.
[[nodiscard]] LabColor LabOfSrgb(const RedGreenBlue& color) noexcept;
[[nodiscard]] RedGreenBlue SrgbOfLab(const LabColor& color) noexcept;

// The relative luminance, Y, that a lightness has, and the other way round.
[[nodiscard]] double LuminanceOfLightness(double lightness) noexcept;
[[nodiscard]] double LightnessOfLuminance(double luminance) noexcept;
// The part that one value of an sRGB color has in the color's luminance; their sum is its Y.
[[nodiscard]] double LuminanceOfRed(int value) noexcept;
[[nodiscard]] double LuminanceOfGreen(int value) noexcept;
[[nodiscard]] double LuminanceOfBlue(int value) noexcept;
