#include "shading/LitSurface.h"

#include <algorithm>
#include <cmath>

namespace {

// The lamp is at the upper left, the one that lightens the shade at the lower right, the eye in
// front.
constexpr Direction kLamp{-0.48, -0.60, 0.64};
constexpr Direction kFill{0.48, 0.36, 0.80};

double Value(const SurfaceShares& values, ColorValue which) noexcept {
    return std::clamp(values[static_cast<std::size_t>(which)], 0.0, 1.0);
}

// White, and the lamp's mirror image; less than any pixel shows is none.
double Highlight(const SurfaceMaterial& material, double reflection) noexcept {
    constexpr double kUnseen = -40; // binary logarithm
    const double power = material.exponent * reflection;
    return power > kUnseen ? material.specular * std::exp2(power) : 0;
}

// How much of a lamp's light falls on the surface with this normal.
double Facing(const Direction& normal, const Direction& lamp) noexcept {
    return std::max(0.0, ScalarProduct(normal, lamp));
}

// In strengths of the lamp that stands alone.
double LightOfLamps(double lamp, double fill, Lighting lighting) noexcept {
    switch (lighting) {
    case Lighting::TwoLamps:
        return (4 * lamp + 2 * fill) / 3;
    case Lighting::SoftLamps:
        return (18 * lamp + 4 * fill) / 15;
    default:
        return lamp;
    }
}

} // namespace

SurfaceShares SharesOf(const ColorValueArray& values) noexcept {
    SurfaceShares shares{};
    for (std::size_t i = 0; i < shares.size(); ++i)
        shares[i] = std::clamp(values[i] / static_cast<double>(MaximumOfColorValue(i)), 0.0, 1.0);
    return shares;
}

RedGreenBlue PlainColor(const SurfaceShares& values) noexcept {
    return {ColorByte(values[0]), ColorByte(values[1]), ColorByte(values[2])};
}

double ScalarProduct(const Direction& first, const Direction& second) noexcept {
    return first[0] * second[0] + first[1] * second[1] + first[2] * second[2];
}

SurfaceLight LightOn(const Direction& normal, Lighting lighting) noexcept {
    const double facing = Facing(normal, kLamp);
    const double reflected = std::max(0.0, 2 * facing * normal[2] - kLamp[2]);
    return {.facing = LightOfLamps(facing, Facing(normal, kFill), lighting),
            .reflection = std::log2(reflected)};
}

int ColorByte(double value) noexcept {
    const double scaled = std::clamp(value, 0.0, 1.0) * 255;
    const int lower = static_cast<int>(scaled);
    const double part = scaled - lower;
    return part > 0.5 || (part == 0.5 && lower % 2 != 0) ? lower + 1 : lower;
}

std::uint32_t PackedColor(const SurfaceColor& color) noexcept {
    const auto byte = [](double value) { return static_cast<std::uint32_t>(ColorByte(value)); };
    return byte(color[0]) << 16 | byte(color[1]) << 8 | byte(color[2]);
}

SurfaceColor UnpackedColor(std::uint32_t pixel) noexcept {
    return {(pixel >> 16 & 0xFF) / 255.0, (pixel >> 8 & 0xFF) / 255.0, (pixel & 0xFF) / 255.0};
}

SurfaceColor MixedColor(const SurfaceColor& first, const SurfaceColor& second,
                        double share) noexcept {
    SurfaceColor result{};
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = first[i] * (1 - share) + second[i] * share;
    return result;
}

double GroundShade(int x, int y, int square) noexcept {
    return (x / square + y / square) % 2 == 0 ? 0.93 : 0.72;
}

SurfaceMaterial::SurfaceMaterial(const SurfaceShares& values) noexcept
    : color{Value(values, ColorValue::Red), Value(values, ColorValue::Green),
            Value(values, ColorValue::Blue)},
      ambient(Value(values, ColorValue::Ambient) * 0.4),
      diffuse(Value(values, ColorValue::Diffuse) * 0.75),
      specular(Value(values, ColorValue::Specular)),
      exponent(2 + 118 * Value(values, ColorValue::Shininess)),
      transparency(Value(values, ColorValue::Transparency)),
      emission(Value(values, ColorValue::Emission)) {}

SurfaceColor ShownColor(const SurfaceMaterial& material, const SurfaceLight& light,
                        double ground) noexcept {
    const double highlight = Highlight(material, light.reflection);
    const double glow = material.ambient + material.diffuse * light.facing + material.emission;
    SurfaceColor lit{};
    for (std::size_t i = 0; i < lit.size(); ++i)
        lit[i] = std::min(1.0, material.color[i] * glow + highlight);
    return MixedColor(lit, {ground, ground, ground}, material.transparency);
}
