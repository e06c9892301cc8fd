#pragma once

#include "common/ColorRecord.h"
#include "shading/LitSurface.h"

#include <cstdint>
#include <vector>

// Pictures of a surface that has the nine values of a color: docs/shading.md describes the model.

// A ball of this material under one lamp, on a chequered ground that shows through when it is
// transparent. size * size pixels, row after row from the top, each 0x00RRGGBB; background
// likewise.
[[nodiscard]] std::vector<std::uint32_t> ShadedBall(const SurfaceShares& values, int size,
                                                    std::uint32_t background);

// What all balls of a size have in common, whatever their material is.
class BallShape {
public:
    // A pixel of the picture.
    struct Spot {
        SurfaceLight light;
        double ground;  // shade of the checkerboard
        double covered; // how much of the pixel the ball covers
    };

    BallShape(int size, Lighting lighting); // pixels

    [[nodiscard]] int Size() const noexcept { return size_; }
    [[nodiscard]] const std::vector<Spot>& Spots() const noexcept { return spots_; }

private:
    int size_;
    std::vector<Spot> spots_; // row after row from the top
};

// A ball without a background: pixels row after row from the top, each 0xAARRGGBB with the
// alpha multiplied in.
[[nodiscard]] std::vector<std::uint32_t> BallPicture(const ColorValueArray& values,
                                                     const BallShape& shape);

// A field of the plain color on a chequered ground that shows through when it is transparent, with
// a border inside its edges.
struct FieldShape {
    int size = 0;            // of the picture, pixels
    int margin = 0;          // around the field, without a color
    int border = 0;          // thickness
    std::uint32_t color = 0; // of the border, 0x00RRGGBB
};

// Pixels like those of a ball's picture.
[[nodiscard]] std::vector<std::uint32_t> FieldPicture(const ColorValueArray& values,
                                                      const FieldShape& shape);
