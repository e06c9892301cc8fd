#pragma once

#include "common/TwipsRect.h"

#include <windows.h>

inline constexpr int kDesignDpi = 96;

// Turns lengths between twips, pixels of one resolution and design pixels (1/96 inch).  A number of
// pixels that goes to twips and back stays the same number.
class DpiScale {
public:
    explicit DpiScale(unsigned dpi = kDesignDpi) noexcept : dpi_(static_cast<int>(dpi)) {}

    [[nodiscard]] int Dpi() const noexcept { return dpi_; }
    [[nodiscard]] int FromDesign(int designPixels) const noexcept; // MulDiv, to the nearest

    [[nodiscard]] float ToTwips(int pixels) const noexcept;
    [[nodiscard]] int ToPixels(float twips) const noexcept;

    // Edges and lengths are converted each on its own, so that neither drifts.
    [[nodiscard]] TwipsRect ToTwips(const RECT& pixels) const noexcept;
    [[nodiscard]] RECT ToPixels(const TwipsRect& twips) const noexcept;

private:
    int dpi_;
};

// GetDpiForWindow; the screen's resolution where that function does not exist.
[[nodiscard]] unsigned DpiOfWindow(HWND window) noexcept;

// The resolution of the primary screen (GetDeviceCaps, LOGPIXELSX).
[[nodiscard]] unsigned DpiOfScreen() noexcept;

[[nodiscard]] inline int WidthOf(const RECT& rect) noexcept {
    return rect.right - rect.left;
}
[[nodiscard]] inline int HeightOf(const RECT& rect) noexcept {
    return rect.bottom - rect.top;
}
