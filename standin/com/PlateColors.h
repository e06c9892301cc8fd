#pragma once

#include "common/ColorNumber.h"

// Black or white, whichever is easier to read on the background.
[[nodiscard]] ColorNumber ReadableOn(ColorNumber background) noexcept;

// The color with every part multiplied by percent / 100.
[[nodiscard]] ColorNumber Darker(ColorNumber color, int percent) noexcept;
