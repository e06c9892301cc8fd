#pragma once

#include "mainwindow/LayoutPane.h"

// The main window's geometry as plain arithmetic, in twips.
namespace Layout {

inline constexpr float kSmallestPane = 750; // width of the left pane; also from the right edge
inline constexpr float kPaneGap = 40;       // between the panes; also room below the color area
inline constexpr float kListMargin = 140;
inline constexpr float kSplitterBarInset = 20;
inline constexpr float kSmallestPaneHeight = 300;
inline constexpr float kSplitterWidth = 40;

// [750, formWidth - 750]; in a form too narrow for both, the upper bound wins.
[[nodiscard]] float ClampSplitter(float x, float formWidth) noexcept;

// Places both panes and the splitter for the left pane's width x, which is clamped in place.  Tops
// and heights of the panes stay.
void SizeControls(float& x, float formWidth, MainLayout& layout) noexcept;

// The whole pass for a window in the normal state: for the splitter where it is and for the frame
// or the small swatch, whichever is shown.
void Arrange(const LayoutMetrics& metrics, MainLayout& layout) noexcept;

// The bar that is shown while the splitter is dragged.
[[nodiscard]] TwipsRect SplitterBar(const TwipsRect& splitter) noexcept;

} // namespace Layout
