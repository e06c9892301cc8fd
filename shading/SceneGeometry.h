#pragma once

#include "shading/LitSurface.h"
#include "shading/RoundedCube.h"

#include <optional>

// What is seen where in the scene of a ball and a cube before a checkerboard, in pixels of its
// picture. The eye and the lamps are far away.
class SceneGeometry {
public:
    struct Point {
        double x;
        double y;
    };
    // A point of a surface.
    struct Hit {
        Direction normal;
        bool isBall;
    };

    SceneGeometry(int width, int height);

    // None: the board.
    [[nodiscard]] std::optional<Hit> HitAt(const Point& at) const noexcept;

    // Shade of the board where nothing is before it: fainter than behind what is looked at.
    [[nodiscard]] double BoardAt(const Point& at) const noexcept;
    // As it is seen through a surface, which bends the light.
    [[nodiscard]] double BoardBehind(const Point& at, const Direction& normal) const noexcept;

private:
    [[nodiscard]] Point PlaceOfBall() const noexcept;
    [[nodiscard]] double GroundAt(const Point& at) const noexcept;

    Point middle_;
    int square_;
    double room_; // radius of that of each
    double radius_;
    RoundedCube cube_;
    Point ball_; // from the middle; the cube is on the other side
};
