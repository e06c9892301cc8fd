#pragma once

#include "platform/Handles.h"

#include <functional>
#include <string>

// A mouse pointer made of one of the program's icons, its tip at the upper left corner; none when
// the executable does not hold the icon (CreateIconIndirect).
[[nodiscard]] CursorHandle LoadNamedCursor(const std::string& icon, int size); // pixels

// The same with a picture behind the icon, painted with an alpha channel onto a device of
// size * size pixels that shows nothing yet.
[[nodiscard]] CursorHandle LoadNamedCursor(const std::string& icon, int size,
                                           const std::function<void(HDC)>& paintBehind);
