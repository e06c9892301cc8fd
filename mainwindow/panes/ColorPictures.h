#pragma once

#include "platform/AlphaPainter.h"
#include "shading/PictureCache.h"

// Paints what the rows of the list have for a picture: a ball where pictures are large, a field
// where they are small.
class ColorPictures {
public:
    // Over what the device shows; square: pixels.
    void Paint(HDC device, const RECT& square, const ColorValueArray& values, bool isLarge);

private:
    AlphaPainter painter_;
    PictureCache cache_;
};
