#include "mainwindow/panes/ColorPictures.h"

#include "mainwindow/panes/FieldBorder.h"
#include "platform/DpiScale.h"

void ColorPictures::Paint(HDC device, const RECT& square, const ColorValueArray& values,
                          bool isLarge) {
    ColorPicture picture{.values = values, .size = WidthOf(square), .isBall = isLarge};
    if (!isLarge)
        picture.border = PixelOf(FieldBorderColor());
    painter_.Paint(device, {square.left, square.top}, picture.size, cache_.PixelsOf(picture));
}
