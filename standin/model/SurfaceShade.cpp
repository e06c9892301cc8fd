#include "standin/model/SurfaceShade.h"

#include "common/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Color = std::array<double, 3>; // red, green, blue; 0..1

double Value(const MaterialValues& values, ColorValue which) noexcept {
    return std::clamp(values[static_cast<std::size_t>(which)], 0.0, 1.0);
}

int ToByte(double value) noexcept {
    return static_cast<int>(RoundHalfToEven(std::clamp(value, 0.0, 1.0) * 255));
}

std::uint32_t Pack(const Color& color) noexcept {
    const auto byte = [](double value) { return static_cast<std::uint32_t>(ToByte(value)); };
    return byte(color[0]) << 16 | byte(color[1]) << 8 | byte(color[2]);
}

Color Unpack(std::uint32_t pixel) noexcept {
    return {(pixel >> 16 & 0xFF) / 255.0, (pixel >> 8 & 0xFF) / 255.0, (pixel & 0xFF) / 255.0};
}

Color Mix(const Color& first, const Color& second, double share) noexcept {
    Color result{};
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = first[i] * (1 - share) + second[i] * share;
    return result;
}

// Ambient and diffuse light in the surface's color, a white highlight, and its own glow.
// x, y, z: the normal of the surface; the light comes from the upper left, the eye is in front.
Color Lit(const MaterialValues& values, double x, double y, double z) noexcept {
    constexpr std::array<double, 3> light{-0.48, -0.60, 0.64};
    const double facing = std::max(0.0, x * light[0] + y * light[1] + z * light[2]);
    const double reflected = std::max(0.0, 2 * facing * z - light[2]);
    const double exponent = 2 + 118 * Value(values, ColorValue::Shininess);
    const double highlight = Value(values, ColorValue::Specular) * std::pow(reflected, exponent);
    const double glow = Value(values, ColorValue::Ambient) * 0.4 +
                        Value(values, ColorValue::Diffuse) * 0.75 * facing +
                        Value(values, ColorValue::Emission);
    Color result{};
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = std::min(1.0, std::clamp(values[i], 0.0, 1.0) * glow + highlight);
    return result;
}

Color Ground(int x, int y, int size) noexcept {
    const int square = std::max(size / 8, 1);
    const double shade = (x / square + y / square) % 2 == 0 ? 0.93 : 0.72;
    return {shade, shade, shade};
}

} // namespace

RedGreenBlue PlainColor(const MaterialValues& values) noexcept {
    return {ToByte(values[0]), ToByte(values[1]), ToByte(values[2])};
}

std::vector<std::uint32_t> ShadedBall(const MaterialValues& values, int size,
                                      std::uint32_t background) {
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    const double radius = size / 2.0;
    for (int row = 0; row < size; ++row) {
        for (int column = 0; column < size; ++column) {
            const double x = (column + 0.5 - radius) / radius;
            const double y = (row + 0.5 - radius) / radius;
            const double distance = std::hypot(x, y);
            const double z = std::sqrt(std::max(0.0, 1 - distance * distance));
            const Color ball = Mix(Lit(values, x, y, z), Ground(column, row, size),
                                   Value(values, ColorValue::Transparency));
            const double covered = std::clamp((1 - distance) * radius, 0.0, 1.0);
            pixels.push_back(Pack(Mix(Unpack(background), ball, covered)));
        }
    }
    return pixels;
}
