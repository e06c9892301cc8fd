#include "mainwindow/panes/MaterialPreview.h"

#include "mainwindow/panes/FieldBorder.h"
#include "platform/DpiScale.h"

namespace {

constexpr int kBorder = 1; // pixel, as that of the plain swatch

} // namespace

bool MaterialPreview::SetValues(const ColorValueArray& values) {
    const bool isOther = values_ != values;
    values_ = values;
    return isOther;
}

void MaterialPreview::Paint(const Canvas& canvas, const RECT& area, int dpi) {
    const COLORREF border = FieldBorderColor();
    RECT inside = area;
    InflateRect(&inside, -kBorder, -kBorder);
    if (IsRectEmpty(&inside) == FALSE)
        canvas.Pixels(inside, field_.PixelsOf({.values = values_,
                                               .width = WidthOf(inside),
                                               .height = HeightOf(inside),
                                               .dpi = dpi,
                                               .line = PixelOf(border)}));
    canvas.Frame(area, border, kBorder);
}
