#include "common/PlainColorModels.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kHighest = 255;
constexpr double kCircle = 360;
constexpr double kSector = 60; // of the six between the pure and the mixed hues

double Limited(double share) {
    return std::clamp(share, 0.0, 1.0);
}

int ValueOf(double share) {
    return static_cast<int>(std::lround(Limited(share) * kHighest));
}

double ShareOf(int value) {
    return Limited(value / kHighest);
}

double InkOf(double light, double brightest) {
    return brightest > 0 ? 1 - light / brightest : 0;
}

// How far a hue is from red, green or blue, in sectors: 0..3.
double SectorsFrom(double primary, double hue) {
    const double away = std::abs(hue - primary);
    return std::min(away, kCircle - away) / kSector;
}

// What a hue has of the light of the primary: all up to one sector away, none from two on.
double ShareOfPrimary(double primary, double hue) {
    return Limited(2 - SectorsFrom(primary, hue));
}

double HueOf(const RedGreenBlue& color, int highest, int spread) {
    if (spread == 0)
        return 0;
    const auto between = [spread](int from, int to) {
        return static_cast<double>(from - to) / spread;
    };
    double sectors = 4 + between(color.red, color.green);
    if (highest == color.red)
        sectors = between(color.green, color.blue);
    else if (highest == color.green)
        sectors = 2 + between(color.blue, color.red);
    return sectors < 0 ? sectors * kSector + kCircle : sectors * kSector;
}

} // namespace

RedGreenBlue SrgbOfCmyk(const CmykColor& color) noexcept {
    const double light = 1 - Limited(color.black);
    return {ValueOf((1 - Limited(color.cyan)) * light),
            ValueOf((1 - Limited(color.magenta)) * light),
            ValueOf((1 - Limited(color.yellow)) * light)};
}

CmykColor CmykOfSrgb(const RedGreenBlue& color) noexcept {
    const double red = ShareOf(color.red);
    const double green = ShareOf(color.green);
    const double blue = ShareOf(color.blue);
    const double brightest = std::max({red, green, blue});
    return {InkOf(red, brightest), InkOf(green, brightest), InkOf(blue, brightest), 1 - brightest};
}

RedGreenBlue SrgbOfHsb(const HsbColor& color) noexcept {
    const double hue = color.hue - kCircle * std::floor(color.hue / kCircle);
    const double saturation = Limited(color.saturation);
    const double brightness = Limited(color.brightness);
    const auto value = [&](double primary) {
        return ValueOf(brightness * (1 - saturation * (1 - ShareOfPrimary(primary, hue))));
    };
    return {value(0), value(kCircle / 3), value(2 * kCircle / 3)};
}

HsbColor HsbOfSrgb(const RedGreenBlue& color) noexcept {
    const int highest = std::max({color.red, color.green, color.blue});
    const int spread = highest - std::min({color.red, color.green, color.blue});
    const double saturation = highest > 0 ? static_cast<double>(spread) / highest : 0;
    return {HueOf(color, highest, spread), saturation, ShareOf(highest)};
}

RedGreenBlue SrgbOfGray(double brightness) noexcept {
    const int value = ValueOf(brightness);
    return {value, value, value};
}
