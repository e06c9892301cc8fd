#pragma once

#include "common/ColorNumber.h"
#include "platform/DpiScale.h"
#include "platform/Handles.h"

#include <string>

// Drawing on a device: filled and framed areas, polygons, lines of text.
class Canvas {
public:
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
    // pixels: size * size values 0x00RRGGBB.
    void Pixels(int left, int top, int size, const std::uint32_t* pixels) const;

private:
    HDC device_;
    HGDIOBJ fontBefore_;
};

// Black or white, whichever is easier to read on the background.
[[nodiscard]] ColorNumber ReadableOn(ColorNumber background) noexcept;

// The color with every part multiplied by percent / 100.
[[nodiscard]] ColorNumber Darker(ColorNumber color, int percent) noexcept;
