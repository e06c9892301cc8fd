#pragma once

#include "shading/LitSurface.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// A ball and a cube with rounded edges before a checkerboard, lit by two lamps: what all pictures
// of a size have in common, whatever the material is. docs/shading.md describes the scene.
class SceneShape {
public:
    // What a part of a pixel shows.
    struct Spot {
        SurfaceLight light;
        double ground;  // shade of the checkerboard that is seen there, or that stands behind
        bool isSurface; // of ball or cube
    };

    SceneShape(int width, int height); // pixels

    [[nodiscard]] int Width() const noexcept { return width_; }
    [[nodiscard]] int Height() const noexcept { return height_; }

    // Of each pixel, row after row from the top: one, or more where an edge goes through it, each
    // with the same share.
    [[nodiscard]] std::size_t PixelCount() const noexcept { return first_.size() - 1; }
    [[nodiscard]] std::span<const Spot> SpotsOf(std::size_t pixel) const noexcept;

private:
    int width_;
    int height_;
    std::vector<Spot> spots_;
    std::vector<std::size_t> first_{0}; // spot of each pixel, and one behind the last
};

// Pixels row after row from the top, each 0x00RRGGBB.
[[nodiscard]] std::vector<std::uint32_t> ScenePicture(const ColorValueArray& values,
                                                      const SceneShape& shape);
