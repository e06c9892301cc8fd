#pragma once

#include "common/ColorNumber.h"
#include "platform/DpiScale.h"
#include "platform/Handles.h"

#include <cstdint>
#include <string>

// Drawing on a device: filled and framed areas, polygons, pictures, texts.
class Canvas {
public:
    // The font must outlive the canvas; after it the device has its own again.
    Canvas(HDC device, HFONT font);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    void Fill(const RECT& area, ColorNumber color) const;
    // A frame inside the edges of the area.
    void Frame(const RECT& area, ColorNumber color, int thickness) const;
    void FillPolygon(const POINT* points, int count, ColorNumber color) const;
    // format: DT_...; the text is never taken for one with access keys.
    void Text(const std::string& text, RECT area, ColorNumber color, UINT format) const;
    void SetFont(HFONT font) const { SelectObject(device_, font); }
    // The same device with another font.
    [[nodiscard]] Canvas WithFont(HFONT font) const { return {device_, font}; }
    // The frame of what has the focus.
    void FocusFrame(const RECT& area) const { DrawFocusRect(device_, &area); }
    // The whole picture, as large as the area.
    void Picture(HBITMAP picture, const RECT& area) const;
    // pixels: as many values 0x00RRGGBB as the area has, row after row from the top.
    void Pixels(const RECT& area, const std::uint32_t* pixels) const;

private:
    HDC device_;
    HGDIOBJ fontBefore_;
};
