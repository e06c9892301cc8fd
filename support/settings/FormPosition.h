#pragma once

#include "common/ports/FormWindow.h"
#include "common/TwipsRect.h"

#include <string>
#include <string_view>

// A window's position as one text: "L=1200;T=900;W=9600;H=7200;S=0;".
struct FormPosition {
    TwipsRect bounds;
    int state = 0; // WindowState as stored, any number
};

[[nodiscard]] std::string FormatFormPosition(const TwipsRect& bounds, WindowState state);

// Whole numbers, rounded half to even.  A field that is missing or cannot be read is 0.
[[nodiscard]] FormPosition ParseFormPosition(std::string_view text);
