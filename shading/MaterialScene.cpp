#include "shading/MaterialScene.h"

#include "shading/SceneGeometry.h"

#include <optional>

namespace {

using Spot = SceneShape::Spot;

constexpr double kAlike = 0.985; // cosine between normals that look the same
constexpr int kParts = 4;        // of a pixel that an edge goes through, on its width

Spot SpotAt(const SceneGeometry& scene, const SceneGeometry::Point& at) noexcept {
    const std::optional<SceneGeometry::Hit> hit = scene.HitAt(at);
    if (!hit)
        return {.light = {}, .ground = scene.BoardAt(at), .isSurface = false};
    return {.light = LightOn(hit->normal, Lighting::SoftLamps),
            .ground = scene.BoardBehind(at, hit->normal),
            .isSurface = true};
}

// What the corners of the pixels show: a pixel has an edge where they do not show the same.
class Corners {
public:
    Corners(const SceneGeometry& scene, int width, int height)
        : inLine_(static_cast<std::size_t>(width) + 1) {
        for (int y = 0; y <= height; ++y)
            for (int x = 0; x <= width; ++x)
                corners_.push_back(
                    CornerAt(scene, {static_cast<double>(x), static_cast<double>(y)}));
    }

    [[nodiscard]] bool AreAlike(int x, int y) const noexcept {
        const std::size_t first =
            static_cast<std::size_t>(y) * inLine_ + static_cast<std::size_t>(x);
        const auto isLikeFirst = [&](std::size_t other) {
            return IsLike(corners_[first], corners_[other]);
        };
        return isLikeFirst(first + 1) && isLikeFirst(first + inLine_) &&
               isLikeFirst(first + inLine_ + 1);
    }

private:
    struct Corner {
        std::optional<SceneGeometry::Hit> hit;
        double board = 0; // behind the surface
    };

    [[nodiscard]] static Corner CornerAt(const SceneGeometry& scene,
                                         const SceneGeometry::Point& at) {
        const std::optional<SceneGeometry::Hit> hit = scene.HitAt(at);
        return {hit, hit ? scene.BoardBehind(at, hit->normal) : 0};
    }
    [[nodiscard]] static bool IsLike(const Corner& one, const Corner& other) noexcept {
        if (!one.hit || !other.hit)
            return !one.hit && !other.hit;
        return one.hit->isBall == other.hit->isBall && one.board == other.board &&
               ScalarProduct(one.hit->normal, other.hit->normal) > kAlike;
    }

    std::size_t inLine_;
    std::vector<Corner> corners_;
};

SurfaceColor ColorOf(const SurfaceMaterial& material, const Spot& spot) noexcept {
    if (spot.isSurface)
        return ShownColor(material, spot.light, spot.ground);
    return {spot.ground, spot.ground, spot.ground};
}

// Each spot has the same share.
SurfaceColor ColorOf(const SurfaceMaterial& material, std::span<const Spot> spots) noexcept {
    SurfaceColor color{};
    double count = 0;
    for (const Spot& spot : spots)
        color = MixedColor(color, ColorOf(material, spot), 1 / ++count);
    return color;
}

// corner: the upper left one of the pixel; parts: on its width.
void AddSpots(std::vector<Spot>& spots, const SceneGeometry& scene,
              const SceneGeometry::Point& corner, int parts) {
    const double size = 1.0 / parts;
    for (int row = 0; row < parts; ++row)
        for (int column = 0; column < parts; ++column)
            spots.push_back(
                SpotAt(scene, {corner.x + (column + 0.5) * size, corner.y + (row + 0.5) * size}));
}

} // namespace

SceneShape::SceneShape(int width, int height) : width_(width), height_(height) {
    const SceneGeometry scene(width, height);
    const Corners corners(scene, width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            AddSpots(spots_, scene, {static_cast<double>(x), static_cast<double>(y)},
                     corners.AreAlike(x, y) ? 1 : kParts);
            first_.push_back(spots_.size());
        }
}

std::span<const SceneShape::Spot> SceneShape::SpotsOf(std::size_t pixel) const noexcept {
    return {spots_.data() + first_[pixel], first_[pixel + 1] - first_[pixel]};
}

std::vector<std::uint32_t> ScenePicture(const ColorValueArray& values, const SceneShape& shape) {
    const SurfaceMaterial material(SharesOf(values));
    std::vector<std::uint32_t> pixels(shape.PixelCount());
    for (std::size_t pixel = 0; pixel < pixels.size(); ++pixel)
        pixels[pixel] = PackedColor(ColorOf(material, shape.SpotsOf(pixel)));
    return pixels;
}
