#include "mainwindow/panes/FieldBorder.h"

#include "common/ColorNumber.h"

namespace {

bool IsHighContrast() noexcept {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace

COLORREF FieldBorderColor(bool isHighContrast) noexcept {
    return GetSysColor(isHighContrast ? COLOR_WINDOWTEXT : COLOR_3DSHADOW);
}

COLORREF FieldBorderColor() noexcept {
    return FieldBorderColor(IsHighContrast());
}

std::uint32_t PixelOf(COLORREF color) noexcept {
    const RedGreenBlue parts = SplitColorNumber(color);
    return static_cast<std::uint32_t>(parts.red << 16 | parts.green << 8 | parts.blue);
}
