#pragma once

#include "common/ColorNumber.h"
#include "common/ColorRecord.h"

#include <array>
#include <cstdint>

// How a point of a surface with the nine values of a color looks under its lamps: docs/shading.md
// describes the model.

// The nine values in their order, 0..1 each; what is beyond counts as that end.
using SurfaceShares = std::array<double, kColorValueCount>;

// values: 0..255 and 0..100; what is beyond counts as that end.
[[nodiscard]] SurfaceShares SharesOf(const ColorValueArray& values) noexcept;

// The plain color of the values, without any light.
[[nodiscard]] RedGreenBlue PlainColor(const SurfaceShares& values) noexcept;

// A lamp at the upper left, alone or with a second one that lightens the shade: strong lamps, so
// that small pictures are told from each other, or softer ones, so that a light color has shades.
enum class Lighting { OneLamp, TwoLamps, SoftLamps };

// To the right, down, towards the eye; of length 1 where it is a direction.
using Direction = std::array<double, 3>;

[[nodiscard]] double ScalarProduct(const Direction& first, const Direction& second) noexcept;

// Light of the lamps on a surface.
struct SurfaceLight {
    double facing;     // that falls on it; 0: in the shade
    double reflection; // binary logarithm of the cosine between the reflected ray and the eye
};

// normal: of length 1.
[[nodiscard]] SurfaceLight LightOn(const Direction& normal, Lighting lighting) noexcept;

using SurfaceColor = std::array<double, 3>; // red, green, blue; 0..1

// A channel as a byte: to the nearest, a half to the even one.
[[nodiscard]] int ColorByte(double value) noexcept;

// 0x00RRGGBB, and back.
[[nodiscard]] std::uint32_t PackedColor(const SurfaceColor& color) noexcept;
[[nodiscard]] SurfaceColor UnpackedColor(std::uint32_t pixel) noexcept;

// share: of the second color, 0..1.
[[nodiscard]] SurfaceColor MixedColor(const SurfaceColor& first, const SurfaceColor& second,
                                      double share) noexcept;

// The checkerboard of light gray that stands behind what is transparent; square: the side of a
// square, pixels.
[[nodiscard]] double GroundShade(int x, int y, int square) noexcept;

// How a surface reflects the light, and how it glows.
struct SurfaceMaterial {
    explicit SurfaceMaterial(const SurfaceShares& values) noexcept;

    SurfaceColor color;
    double ambient;
    double diffuse;
    double specular;
    double exponent;
    double transparency;
    double emission;
};

// Ambient and diffuse light in the surface's color, a white highlight, and its own glow, with the
// shade of the ground behind.
[[nodiscard]] SurfaceColor ShownColor(const SurfaceMaterial& material, const SurfaceLight& light,
                                      double ground) noexcept;
