#include "mainwindow/panes/ColorPictures.h"

#include "common/ColorNumber.h"
#include "platform/DpiScale.h"

namespace {

bool IsHighContrast() noexcept {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

// As the pixels of pictures have it: 0x00RRGGBB.
std::uint32_t PixelOf(COLORREF color) noexcept {
    const RedGreenBlue parts = SplitColorNumber(color);
    return static_cast<std::uint32_t>(parts.red << 16 | parts.green << 8 | parts.blue);
}

} // namespace

COLORREF FieldBorderColor(bool isHighContrast) noexcept {
    return GetSysColor(isHighContrast ? COLOR_WINDOWTEXT : COLOR_3DSHADOW);
}

void ColorPictures::Paint(HDC device, const RECT& square, const ColorValueArray& values,
                          bool isLarge) {
    ColorPicture picture{.values = values, .size = WidthOf(square), .isBall = isLarge};
    if (!isLarge)
        picture.border = PixelOf(FieldBorderColor(IsHighContrast()));
    painter_.Paint(device, {square.left, square.top}, picture.size, cache_.PixelsOf(picture));
}
