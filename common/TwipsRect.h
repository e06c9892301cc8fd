#pragma once

// A place in a window or on the screen in twips, 1/1440 inch.
struct TwipsRect {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    bool operator==(const TwipsRect&) const = default;
};
