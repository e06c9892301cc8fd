#include "shading/SurfaceShade.h"

#include <algorithm>
#include <cmath>

namespace {

using Color = std::array<double, 3>; // red, green, blue; 0..1
using Pixels = std::vector<std::uint32_t>;

constexpr std::uint32_t kOpaque = 0xFF000000;

double Value(const SurfaceShares& values, ColorValue which) noexcept {
    return std::clamp(values[static_cast<std::size_t>(which)], 0.0, 1.0);
}

// To the nearest, a half to the even one.
int ToByte(double value) noexcept {
    const double scaled = std::clamp(value, 0.0, 1.0) * 255;
    const int lower = static_cast<int>(scaled);
    const double part = scaled - lower;
    return part > 0.5 || (part == 0.5 && lower % 2 != 0) ? lower + 1 : lower;
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

// How the two lights are reflected, and how the surface glows.
struct Material {
    explicit Material(const SurfaceShares& values) noexcept
        : color{Value(values, ColorValue::Red), Value(values, ColorValue::Green),
                Value(values, ColorValue::Blue)},
          ambient(Value(values, ColorValue::Ambient) * 0.4),
          diffuse(Value(values, ColorValue::Diffuse) * 0.75),
          specular(Value(values, ColorValue::Specular)),
          exponent(2 + 118 * Value(values, ColorValue::Shininess)),
          transparency(Value(values, ColorValue::Transparency)),
          emission(Value(values, ColorValue::Emission)) {}

    Color color;
    double ambient;
    double diffuse;
    double specular;
    double exponent;
    double transparency;
    double emission;
};

// White, and the lamp's mirror image; less than any pixel shows is none.
double Highlight(const Material& material, double reflection) noexcept {
    constexpr double kUnseen = -40; // binary logarithm
    const double power = material.exponent * reflection;
    return power > kUnseen ? material.specular * std::exp2(power) : 0;
}

// Ambient and diffuse light in the surface's color, a white highlight, and its own glow, with the
// ground behind.
Color Shown(const Material& material, const BallShape::Spot& spot) noexcept {
    const double highlight = Highlight(material, spot.reflection);
    const double glow = material.ambient + material.diffuse * spot.facing + material.emission;
    Color lit{};
    for (std::size_t i = 0; i < lit.size(); ++i)
        lit[i] = std::min(1.0, material.color[i] * glow + highlight);
    return Mix(lit, {spot.ground, spot.ground, spot.ground}, material.transparency);
}

// square: the side of a square, pixels.
double Ground(int x, int y, int square) noexcept {
    return (x / square + y / square) % 2 == 0 ? 0.93 : 0.72;
}

using Direction = std::array<double, 3>; // to the right, down, towards the eye; of length 1

// How much of a lamp's light falls on the surface with this normal.
double Facing(const Direction& normal, const Direction& lamp) noexcept {
    return std::max(0.0, normal[0] * lamp[0] + normal[1] * lamp[1] + normal[2] * lamp[2]);
}

// The lamp is at the upper left, the one that lightens the shade at the lower right, the eye in
// front.
BallShape::Spot SpotOfBall(int size, Lighting lighting, int column, int row) noexcept {
    constexpr Direction lamp{-0.48, -0.60, 0.64};
    constexpr Direction fill{0.48, 0.36, 0.80};
    const double radius = size / 2.0;
    const double x = (column + 0.5 - radius) / radius;
    const double y = (row + 0.5 - radius) / radius;
    const double distance = std::hypot(x, y);
    const double z = std::sqrt(std::max(0.0, 1 - distance * distance));
    const double facing = Facing({x, y, z}, lamp);
    const double reflected = std::max(0.0, 2 * facing * z - lamp[2]);
    const bool isOne = lighting == Lighting::OneLamp;
    return {.facing = isOne ? facing : (4 * facing + 2 * Facing({x, y, z}, fill)) / 3,
            .reflection = std::log2(reflected),
            .ground = Ground(column, row, std::max(size / 8, 1)),
            .covered = std::clamp((1 - distance) * radius, 0.0, 1.0)};
}

template <typename PixelOf>
Pixels PaintedBall(const BallShape& shape, const PixelOf& pixelOf) {
    Pixels pixels;
    pixels.reserve(shape.Spots().size());
    for (const BallShape::Spot& spot : shape.Spots())
        pixels.push_back(pixelOf(spot));
    return pixels;
}

// How far the point is inside the margin.
int DepthInField(const FieldShape& shape, int column, int row) noexcept {
    const int nearest = std::min(column, row);
    const int farthest = shape.size - 1 - std::max(column, row);
    return std::min(nearest, farthest) - shape.margin;
}

} // namespace

SurfaceShares SharesOf(const ColorValueArray& values) noexcept {
    SurfaceShares shares{};
    for (std::size_t i = 0; i < shares.size(); ++i)
        shares[i] = std::clamp(values[i] / static_cast<double>(MaximumOfColorValue(i)), 0.0, 1.0);
    return shares;
}

RedGreenBlue PlainColor(const SurfaceShares& values) noexcept {
    return {ToByte(values[0]), ToByte(values[1]), ToByte(values[2])};
}

BallShape::BallShape(int size, Lighting lighting) : size_(size) {
    spots_.reserve(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    for (int row = 0; row < size; ++row)
        for (int column = 0; column < size; ++column)
            spots_.push_back(SpotOfBall(size, lighting, column, row));
}

Pixels ShadedBall(const SurfaceShares& values, int size, std::uint32_t background) {
    const Color behind = Unpack(background);
    const Material material(values);
    return PaintedBall(BallShape(size, Lighting::OneLamp), [&](const BallShape::Spot& spot) {
        return Pack(Mix(behind, Shown(material, spot), spot.covered));
    });
}

Pixels BallPicture(const ColorValueArray& values, const BallShape& shape) {
    const Material material(SharesOf(values));
    return PaintedBall(shape, [&](const BallShape::Spot& spot) {
        if (spot.covered == 0)
            return std::uint32_t{0};
        const auto alpha = static_cast<std::uint32_t>(ToByte(spot.covered));
        return alpha << 24 | Pack(Mix({}, Shown(material, spot), spot.covered));
    });
}

Pixels FieldPicture(const ColorValueArray& values, const FieldShape& shape) {
    const Material material(SharesOf(values));
    const auto side = static_cast<std::size_t>(shape.size);
    const int start = shape.margin + shape.border;
    const int square = std::max((shape.size - 2 * start) / 3, 1);
    const auto inside = [&](int column, int row) {
        const double ground = Ground(column - start, row - start, square);
        return Pack(Mix(material.color, {ground, ground, ground}, material.transparency));
    };
    Pixels pixels(side * side);
    for (int row = shape.margin; row < shape.size - shape.margin; ++row)
        for (int column = shape.margin; column < shape.size - shape.margin; ++column) {
            const bool isInside = DepthInField(shape, column, row) >= shape.border;
            pixels[static_cast<std::size_t>(row) * side + static_cast<std::size_t>(column)] =
                kOpaque | (isInside ? inside(column, row) : shape.color);
        }
    return pixels;
}
