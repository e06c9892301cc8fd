#include "shading/SurfaceShade.h"

#include <algorithm>
#include <cmath>

namespace {

using Pixels = std::vector<std::uint32_t>;

constexpr std::uint32_t kOpaque = 0xFF000000;

BallShape::Spot SpotOfBall(int size, Lighting lighting, int column, int row) noexcept {
    const double radius = size / 2.0;
    const double x = (column + 0.5 - radius) / radius;
    const double y = (row + 0.5 - radius) / radius;
    const double distance = std::hypot(x, y);
    const double z = std::sqrt(std::max(0.0, 1 - distance * distance));
    return {.light = LightOn({x, y, z}, lighting),
            .ground = GroundShade(column, row, std::max(size / 8, 1)),
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

BallShape::BallShape(int size, Lighting lighting) : size_(size) {
    spots_.reserve(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    for (int row = 0; row < size; ++row)
        for (int column = 0; column < size; ++column)
            spots_.push_back(SpotOfBall(size, lighting, column, row));
}

Pixels ShadedBall(const SurfaceShares& values, int size, std::uint32_t background) {
    const SurfaceColor behind = UnpackedColor(background);
    const SurfaceMaterial material(values);
    return PaintedBall(BallShape(size, Lighting::OneLamp), [&](const BallShape::Spot& spot) {
        return PackedColor(
            MixedColor(behind, ShownColor(material, spot.light, spot.ground), spot.covered));
    });
}

Pixels BallPicture(const ColorValueArray& values, const BallShape& shape) {
    const SurfaceMaterial material(SharesOf(values));
    return PaintedBall(shape, [&](const BallShape::Spot& spot) {
        if (spot.covered == 0)
            return std::uint32_t{0};
        const auto alpha = static_cast<std::uint32_t>(ColorByte(spot.covered));
        return alpha << 24 | PackedColor(MixedColor(
                                 {}, ShownColor(material, spot.light, spot.ground), spot.covered));
    });
}

Pixels FieldPicture(const ColorValueArray& values, const FieldShape& shape) {
    const SurfaceMaterial material(SharesOf(values));
    const auto side = static_cast<std::size_t>(shape.size);
    const int start = shape.margin + shape.border;
    const int square = std::max((shape.size - 2 * start) / 3, 1);
    const auto inside = [&](int column, int row) {
        const double ground = GroundShade(column - start, row - start, square);
        return PackedColor(
            MixedColor(material.color, {ground, ground, ground}, material.transparency));
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
