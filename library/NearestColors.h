#pragma once

#include "common/ColorNumber.h"
#include "common/ColorSpaces.h"
#include "library/ColorMatch.h"
#include "library/LibraryPass.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

struct NearColor {
    ColorId id = 0;
    double difference = 0; // as CIEDE2000 has it

    bool operator==(const NearColor&) const = default;
};

// The colors of all open libraries that look most like a given one.
//
// The whole formula is worked out for few of them: most are too light or too dark, which their
// luminance says, the sum of three numbers from tables; and colors that come again are remembered.
class NearestColors {
public:
    static constexpr std::size_t kMost = 1000;

    // colors: must live as long as this.  count: how many are wanted, 1..kMost; other numbers count
    // as the nearest of these.  Values of colors beyond 0..255 count as its ends.  Only colors that
    // the query asks for are looked at; all when it asks for nothing.
    NearestColors(const ColorTable& colors, LibraryRevision revision, const RedGreenBlue& wanted,
                  std::size_t count, ColorQuery query = {});

    // Looks at up to so many colors more; false: it is done.
    bool Advance(std::size_t records);

    // The nearest of those that have been looked at, by difference, equal ones in the order of the
    // table.
    [[nodiscard]] std::vector<NearColor> Sorted() const;

    [[nodiscard]] int Looked() const noexcept { return pass_.Looked(); }
    [[nodiscard]] int Starts() const noexcept { return pass_.Starts(); }

private:
    struct Remembered {
        std::uint32_t color = kNoColor;
        double difference = 0;
    };
    static constexpr std::uint32_t kNoColor = 0xFFFFFFFF;
    static constexpr std::size_t kRemembered = 4096;

    void StartAnew();
    void Look(ColorId id, const StoredColor& stored);
    [[nodiscard]] bool IsAskedFor(const StoredColor& color);
    [[nodiscard]] double DifferenceOf(const RedGreenBlue& color);
    void Take(const NearColor& near);
    void NarrowLuminance();

    LabColor wanted_;
    std::size_t count_;
    ColorMatch match_;
    LibraryPass pass_;
    std::vector<NearColor> nearest_; // a heap, the farthest first
    double leastLuminance_ = 0;      // of colors that can still be among them
    double mostLuminance_ = 0;
    std::vector<Remembered> remembered_;
};
