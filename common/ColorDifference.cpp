#include "common/ColorDifference.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kSeventhPowerOf25 = 6103515625.0;
// Two hues are opposite when their angles differ by 180 degrees; rounding must not decide it.
constexpr double kRounding = 1e-9;

constexpr double Radians(double degrees) {
    return degrees * kPi / 180;
}

constexpr double Squared(double value) {
    return value * value;
}

// From 0 to 1 with growing chroma.
double ShareOfChroma(double chroma) {
    const double seventh = Squared(chroma * chroma * chroma) * chroma;
    return std::sqrt(seventh / (seventh + kSeventhPowerOf25));
}

struct ChromaAndHue {
    double chroma = 0;
    double hue = 0; // radians, 0 to 2 pi; 0 of a gray
};

ChromaAndHue PolarOf(double a, double b) {
    if (a == 0 && b == 0)
        return {};
    const double angle = std::atan2(b, a);
    return {std::hypot(a, b), angle < 0 ? angle + 2 * kPi : angle};
}

// From the first hue to the second, the shorter way round.
double HueStep(const ChromaAndHue& first, const ChromaAndHue& second) {
    const double step = second.hue - first.hue;
    if (first.chroma * second.chroma == 0)
        return 0;
    if (std::abs(step) <= kPi + kRounding)
        return step;
    return step > 0 ? step - 2 * kPi : step + 2 * kPi;
}

// Of two hues; a gray has none.
double MeanHue(const ChromaAndHue& first, const ChromaAndHue& second) {
    const double sum = first.hue + second.hue;
    if (first.chroma * second.chroma == 0)
        return sum;
    if (std::abs(first.hue - second.hue) <= kPi + kRounding)
        return sum / 2;
    return sum < 2 * kPi ? sum / 2 + kPi : sum / 2 - kPi;
}

// T: how much a difference of hue counts, by the hue.
double HueWeight(double hue) {
    return 1 - 0.17 * std::cos(hue - Radians(30)) + 0.24 * std::cos(2 * hue) +
           0.32 * std::cos(3 * hue + Radians(6)) - 0.20 * std::cos(4 * hue - Radians(63));
}

// R_T: what chroma and hue have to do with each other, which is in the blues.
double Rotation(double chroma, double hue) {
    const double angle = Radians(60) * std::exp(-Squared((hue - Radians(275)) / Radians(25)));
    return -std::sin(angle) * 2 * ShareOfChroma(chroma);
}

// S_L.
double LightnessScale(double meanLightness) {
    const double fromMiddle = Squared(meanLightness - 50);
    return 1 + 0.015 * fromMiddle / std::sqrt(20 + fromMiddle);
}

} // namespace

double ColorDifference(const LabColor& first, const LabColor& second) noexcept {
    const double plainChroma = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2;
    const double stretch = 1 + 0.5 * (1 - ShareOfChroma(plainChroma)); // 1 + G
    const ChromaAndHue one = PolarOf(stretch * first.a, first.b);
    const ChromaAndHue other = PolarOf(stretch * second.a, second.b);

    const double meanChroma = (one.chroma + other.chroma) / 2;
    const double meanHue = MeanHue(one, other);
    const double lightnessPart = (second.lightness - first.lightness) /
                                 LightnessScale((first.lightness + second.lightness) / 2);
    const double chromaPart = (other.chroma - one.chroma) / (1 + 0.045 * meanChroma);
    const double huePart = 2 * std::sqrt(one.chroma * other.chroma) *
                           std::sin(HueStep(one, other) / 2) /
                           (1 + 0.015 * meanChroma * HueWeight(meanHue));
    return std::sqrt(Squared(lightnessPart) + Squared(chromaPart) + Squared(huePart) +
                     Rotation(meanChroma, meanHue) * chromaPart * huePart);
}

// What chroma and hue add is never negative: |R_T| is below 2.
double LeastColorDifference(double firstLightness, double secondLightness) noexcept {
    return std::abs(secondLightness - firstLightness) /
           LightnessScale((firstLightness + secondLightness) / 2);
}
