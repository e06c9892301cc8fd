#include "platform/Canvas.h"

#include "platform/Utf16.h"

Canvas::Canvas(HDC device, HFONT font) : device_(device), fontBefore_(SelectObject(device, font)) {
    SetBkMode(device_, TRANSPARENT);
}

Canvas::~Canvas() {
    SelectObject(device_, fontBefore_);
}

void Canvas::Fill(const RECT& area, ColorNumber color) const {
    const BrushHandle brush(CreateSolidBrush(color));
    FillRect(device_, &area, brush.Get());
}

void Canvas::Frame(const RECT& area, ColorNumber color, int thickness) const {
    Fill({area.left, area.top, area.right, area.top + thickness}, color);
    Fill({area.left, area.bottom - thickness, area.right, area.bottom}, color);
    Fill({area.left, area.top, area.left + thickness, area.bottom}, color);
    Fill({area.right - thickness, area.top, area.right, area.bottom}, color);
}

void Canvas::FillPolygon(const POINT* points, int count, ColorNumber color) const {
    const BrushHandle brush(CreateSolidBrush(color));
    const HGDIOBJ brushBefore = SelectObject(device_, brush.Get());
    const HGDIOBJ penBefore = SelectObject(device_, GetStockObject(NULL_PEN));
    Polygon(device_, points, count);
    SelectObject(device_, penBefore);
    SelectObject(device_, brushBefore);
}

void Canvas::Text(const std::string& text, RECT area, ColorNumber color, UINT format) const {
    SetTextColor(device_, color);
    DrawTextW(device_, ToUtf16(text).c_str(), -1, &area, format | DT_NOPREFIX);
}

void Canvas::Picture(HBITMAP picture, const RECT& area) const {
    BITMAP description{};
    GetObjectW(picture, sizeof description, &description);
    const MemoryDevice source(CreateCompatibleDC(device_));
    const HGDIOBJ before = SelectObject(source.Get(), picture);
    SetStretchBltMode(device_, HALFTONE);
    SetBrushOrgEx(device_, 0, 0, nullptr);
    StretchBlt(device_, area.left, area.top, WidthOf(area), HeightOf(area), source.Get(), 0, 0,
               description.bmWidth, description.bmHeight, SRCCOPY);
    SelectObject(source.Get(), before);
}

void Canvas::Pixels(const RECT& area, const std::uint32_t* pixels) const {
    const int width = WidthOf(area);
    const int height = HeightOf(area);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    SetDIBitsToDevice(device_, area.left, area.top, static_cast<DWORD>(width),
                      static_cast<DWORD>(height), 0, 0, 0, static_cast<UINT>(height), pixels, &info,
                      DIB_RGB_COLORS);
}
