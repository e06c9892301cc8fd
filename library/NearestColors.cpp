#include "library/NearestColors.h"

#include "common/ColorDifference.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

// Differences that are the same but for the rounding of two ways to them.
constexpr double kRounding = 1e-9;
constexpr double kLightest = 100;

bool IsNearer(const NearColor& first, const NearColor& second) {
    return std::tie(first.difference, first.id) < std::tie(second.difference, second.id);
}

// The luminance of a color as the sum of three entries.
struct LuminanceTables {
    using Table = std::array<double, 256>;
    Table red{};
    Table green{};
    Table blue{};
};

LuminanceTables MakeTables() {
    LuminanceTables tables;
    for (int value = 0; value <= 255; ++value) {
        const auto place = static_cast<std::size_t>(value);
        tables.red[place] = LuminanceOfRed(value);
        tables.green[place] = LuminanceOfGreen(value);
        tables.blue[place] = LuminanceOfBlue(value);
    }
    return tables;
}

const LuminanceTables& Tables() {
    static const LuminanceTables tables = MakeTables();
    return tables;
}

std::size_t PlaceOf(int value) {
    return static_cast<std::size_t>(value);
}

// The lightness between two, the nearer of which can still be reached, that has this least
// difference from the wanted one.
double LightnessAt(double difference, double wanted, double inside, double outside) {
    if (LeastColorDifference(wanted, outside) <= difference)
        return outside;
    constexpr int kSteps = 30; // to a millionth and less
    for (int step = 0; step < kSteps; ++step) {
        const double middle = (inside + outside) / 2;
        (LeastColorDifference(wanted, middle) <= difference ? inside : outside) = middle;
    }
    return outside;
}

} // namespace

NearestColors::NearestColors(const ColorTable& colors, LibraryRevision revision,
                             const RedGreenBlue& wanted, std::size_t count, ColorQuery query)
    : wanted_(LabOfSrgb(wanted)), count_(std::clamp<std::size_t>(count, 1, kMost)),
      match_(std::move(query)), pass_(colors, std::move(revision)), remembered_(kRemembered) {
    StartAnew();
}

void NearestColors::StartAnew() {
    nearest_.clear();
    leastLuminance_ = -std::numeric_limits<double>::infinity();
    mostLuminance_ = std::numeric_limits<double>::infinity();
}

bool NearestColors::Advance(std::size_t records) {
    return pass_.Advance(
        records, [this] { StartAnew(); },
        [this](ColorId id, const StoredColor& color) { Look(id, color); });
}

void NearestColors::Look(ColorId id, const StoredColor& stored) {
    const RedGreenBlue color = PaintedColor(stored.values[0], stored.values[1], stored.values[2]);
    static const LuminanceTables& tables = Tables();
    const double luminance = tables.red[PlaceOf(color.red)] + tables.green[PlaceOf(color.green)] +
                             tables.blue[PlaceOf(color.blue)];
    if (luminance >= leastLuminance_ && luminance <= mostLuminance_ && IsAskedFor(stored))
        Take({id, DifferenceOf(color)});
}

bool NearestColors::IsAskedFor(const StoredColor& color) {
    return match_.IsForNothing() || match_.HasColor(color.values) ||
           match_.HasWords(color.name.View());
}

double NearestColors::DifferenceOf(const RedGreenBlue& color) {
    const std::uint32_t number = MakeColorNumber(color.red, color.green, color.blue);
    // Consecutive numbers, of colors that differ a little, have places of their own.
    Remembered& known = remembered_[(number ^ number >> 12U) % kRemembered];
    if (known.color != number)
        known = {number, ColorDifference(wanted_, LabOfSrgb(color))};
    return known.difference;
}

// Later colors of the same difference come after those that are there.
void NearestColors::Take(const NearColor& near) {
    if (nearest_.size() == count_) {
        if (!IsNearer(near, nearest_.front()))
            return;
        std::ranges::pop_heap(nearest_, IsNearer);
        nearest_.pop_back();
    }
    nearest_.push_back(near);
    std::ranges::push_heap(nearest_, IsNearer);
    if (nearest_.size() == count_)
        NarrowLuminance();
}

void NearestColors::NarrowLuminance() {
    const double farthest = nearest_.front().difference + kRounding;
    const double lightness = wanted_.lightness;
    leastLuminance_ =
        LuminanceOfLightness(LightnessAt(farthest, lightness, lightness, 0)) - kRounding;
    mostLuminance_ =
        LuminanceOfLightness(LightnessAt(farthest, lightness, lightness, kLightest)) + kRounding;
}

std::vector<NearColor> NearestColors::Sorted() const {
    std::vector<NearColor> sorted = nearest_;
    std::ranges::sort(sorted, IsNearer);
    return sorted;
}
