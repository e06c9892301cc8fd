#include "shading/RoundedCube.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

// Directions of the cube's own axes, as the eye sees them: the second is its upper side's.
constexpr double kTurnSine = 0.3793; // 22.3 degrees around the upright axis
constexpr double kTurnCosine = 0.9253;
constexpr double kTiltSine = 0.4695; // 28 degrees towards the eye
constexpr double kTiltCosine = 0.8829;
constexpr std::array<Direction, 3> kAxes = {
    Direction{kTurnCosine, kTurnSine* kTiltSine, kTurnSine* kTiltCosine},
    Direction{0, -kTiltCosine, kTiltSine},
    Direction{-kTurnSine, kTurnCosine* kTiltSine, kTurnCosine* kTiltCosine}};

constexpr double kRounded = 0.16;     // of half an edge
constexpr double kFarthest = 1.62;    // how far a corner is from the middle, of half an edge
constexpr double kNearEnough = 0.002; // of half an edge

double Length(const Direction& vector) noexcept {
    return std::sqrt(ScalarProduct(vector, vector));
}

// Along the cube's axes, how far a point is beyond the cube that has no rounding around it.
Direction BeyondCore(const Direction& point, double core) noexcept {
    Direction beyond{};
    for (std::size_t axis = 0; axis < kAxes.size(); ++axis) {
        const double along = ScalarProduct(kAxes[axis], point);
        beyond[axis] = std::copysign(std::max(std::abs(along) - core, 0.0), along);
    }
    return beyond;
}

Direction Unit(const Direction& beyond) noexcept {
    Direction sum{};
    for (std::size_t axis = 0; axis < kAxes.size(); ++axis)
        for (std::size_t i = 0; i < sum.size(); ++i)
            sum[i] += beyond[axis] * kAxes[axis][i];
    const double length = Length(sum);
    return {sum[0] / length, sum[1] / length, sum[2] / length};
}

} // namespace

RoundedCube::RoundedCube(double radius) noexcept : half_(radius / kFarthest) {}

// From in front of the cube towards it, each time by as much as nothing can be hit on the way
// (sphere tracing: J. C. Hart, The Visual Computer 12, 1996).
std::optional<Direction> RoundedCube::NormalAt(double x, double y) const noexcept {
    const double reach = half_ * kFarthest;
    double z = x * x + y * y < reach * reach ? reach : -reach;
    while (z > -reach) {
        const Direction beyond = BeyondCore({x, y, z}, half_ * (1 - kRounded));
        const double distance = Length(beyond) - half_ * kRounded;
        if (distance < half_ * kNearEnough)
            return Unit(beyond);
        z -= distance;
    }
    return {};
}
