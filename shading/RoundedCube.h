#pragma once

#include "shading/LitSurface.h"

#include <optional>

// A cube with rounded edges, seen from above with one edge towards the eye. Its middle is where the
// axes meet; the eye is far away in front.
class RoundedCube {
public:
    explicit RoundedCube(double radius) noexcept; // of the ball around it

    // Normal of the surface that is seen at a place, x to the right and y down; none: beside it.
    [[nodiscard]] std::optional<Direction> NormalAt(double x, double y) const noexcept;

private:
    double half_; // of the length of an edge
};
