#pragma once

#include "palettes/Palette.h"

#include <string>
#include <string_view>

// A name as a part of one line: "\t", "\n", "\r" and "\\" stand for a tab, a line feed, a carriage
// return and a backslash, "\x1B" and the like for other control characters.
[[nodiscard]] std::string OnALine(std::string_view name);

// A line for each color: group, name and nine values, with tabs between them; a value that the
// palette does not have is empty.
[[nodiscard]] std::string ListedColors(const Palette& palette);
