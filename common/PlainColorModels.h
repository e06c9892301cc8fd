#pragma once

#include "common/ColorNumber.h"

// Color models that are nothing but arithmetic on sRGB values.  No profile of a printer or a screen
// stands behind them, so what comes out is what a program without one shows.

// Inks, 0 (none) to 1 (full).
struct CmykColor {
    double cyan = 0;
    double magenta = 0;
    double yellow = 0;
    double black = 0;
};

// Hue in degrees, 0 (red) up to 360 (red again); saturation and brightness 0..1.  Also called HSV;
// source: A. R. Smith, Color Gamut Transform Pairs, SIGGRAPH 1978.
struct HsbColor {
    double hue = 0;
    double saturation = 0;
    double brightness = 0;
};

// In all of them numbers beyond their range count as its end; a hue goes round.

// Each value is what ink and black leave of the light: (1 - ink) * (1 - black).
[[nodiscard]] RedGreenBlue SrgbOfCmyk(const CmykColor& color) noexcept;
// As much black as there can be.
[[nodiscard]] CmykColor CmykOfSrgb(const RedGreenBlue& color) noexcept;

[[nodiscard]] RedGreenBlue SrgbOfHsb(const HsbColor& color) noexcept;
// A gray has hue and saturation 0.
[[nodiscard]] HsbColor HsbOfSrgb(const RedGreenBlue& color) noexcept;

// brightness: 0 (black) to 1 (white), an sRGB value and no amount of light.
[[nodiscard]] RedGreenBlue SrgbOfGray(double brightness) noexcept;
