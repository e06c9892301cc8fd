#pragma once

#include "platform/Canvas.h"
#include "shading/MaterialField.h"

// The large color field as a preview of the material: ball and cube above a band of the plain
// color, within a border.
class MaterialPreview {
public:
    // 0..255 and 0..100.  False: they are the same as before.
    bool SetValues(const ColorValueArray& values);

    // area: pixels; dpi: of the monitor.
    void Paint(const Canvas& canvas, const RECT& area, int dpi);

private:
    ColorValueArray values_{};
    MaterialField field_;
};
