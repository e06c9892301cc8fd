#include "shading/SceneGeometry.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSquares = 6;      // of the checkerboard on the shorter side
constexpr double kFilled = 0.92; // how much of their room ball and cube take
constexpr double kApart = 1.25;  // of each from the middle of the picture at most, of a radius
constexpr double kBent = 0.45;   // how far what is behind is shifted at most, of a radius

// Two circles, one at the upper left and one at the lower right, that touch each other.
double RoomOfEach(double width, double height) noexcept {
    const double radius = (width + height - std::sqrt(2 * width * height)) / 2;
    return std::min({radius, width / 2, height / 2});
}

} // namespace

SceneGeometry::SceneGeometry(int width, int height)
    : middle_{width / 2.0, height / 2.0}, square_(std::max(std::min(width, height) / kSquares, 1)),
      room_(RoomOfEach(width, height)), radius_(room_ * kFilled), cube_(radius_),
      ball_(PlaceOfBall()) {}

SceneGeometry::Point SceneGeometry::PlaceOfBall() const noexcept {
    const Point corner{room_ - middle_.x, room_ - middle_.y};
    const double length = std::hypot(corner.x, corner.y);
    const double share = std::min(1.0, kApart * room_ / std::max(length, 1.0));
    return {corner.x * share, corner.y * share};
}

std::optional<SceneGeometry::Hit> SceneGeometry::HitAt(const Point& at) const noexcept {
    const Point fromMiddle{at.x - middle_.x, at.y - middle_.y};
    const double x = (fromMiddle.x - ball_.x) / radius_;
    const double y = (fromMiddle.y - ball_.y) / radius_;
    if (x * x + y * y < 1)
        return Hit{{x, y, std::sqrt(1 - x * x - y * y)}, true};
    const auto normal = cube_.NormalAt(fromMiddle.x + ball_.x, fromMiddle.y + ball_.y);
    return normal ? std::optional(Hit{*normal, false}) : std::nullopt;
}

double SceneGeometry::GroundAt(const Point& at) const noexcept {
    const int before = 2 * kSquares * square_; // nothing is seen beyond that
    return GroundShade(static_cast<int>(at.x + before), static_cast<int>(at.y + before), square_);
}

double SceneGeometry::BoardAt(const Point& at) const noexcept {
    return 0.86 + 0.4 * (GroundAt(at) - 0.825);
}

double SceneGeometry::BoardBehind(const Point& at, const Direction& normal) const noexcept {
    const double bent = kBent * radius_;
    return GroundAt({at.x - bent * normal[0], at.y - bent * normal[1]});
}
