#pragma once

// Lengths in windows are twips, 1/1440 inch, as single-precision numbers.
struct TwipsRect {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    bool operator==(const TwipsRect&) const = default;
};

struct TwipsSize {
    float width = 0;
    float height = 0;

    bool operator==(const TwipsSize&) const = default;
};

inline constexpr float kTwipsPerInch = 1440;
