#pragma once

#include "platform/Handles.h"

#include <string_view>

// The user's message font for a resolution (SystemParametersInfoForDpi,
// SPI_GETNONCLIENTMETRICS).
[[nodiscard]] FontHandle MessageFont(unsigned dpi);

// The same face, percent of its size.
[[nodiscard]] FontHandle EnlargedFont(HFONT font, int percent, bool bold);

// The same face, underlined as links are.
[[nodiscard]] FontHandle UnderlinedFont(HFONT font);

enum class LongWords { Break, Stay }; // that are longer than a line

// Size in pixels of a text of one or more lines; the width is at most maximumWidth (0: any), longer
// lines are wrapped.  Access-key marks count as they are shown.
[[nodiscard]] SIZE MeasureText(HFONT font, std::wstring_view text, int maximumWidth = 0,
                               LongWords longWords = LongWords::Break);

// Of the letters, in pixels; dialog units are counted by it.
[[nodiscard]] int AverageCharacterWidth(HFONT font);

// Height of one line in pixels.
[[nodiscard]] int LineHeight(HFONT font);
