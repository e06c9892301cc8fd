#pragma once

#include "platform/Handles.h"

#include <string>

// A mouse pointer made of one of the program's icons, its tip at the upper left corner; none when
// the executable does not hold the icon (CreateIconIndirect).
[[nodiscard]] CursorHandle LoadNamedCursor(const std::string& icon, int size); // pixels
