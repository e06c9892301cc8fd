#pragma once

// A size in twips, 1/1440 inch.
struct TwipsSize {
    float width = 0;
    float height = 0;

    bool operator==(const TwipsSize&) const = default;
};
