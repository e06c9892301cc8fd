#include "platform/BufferedPaint.h"

#include "platform/DpiScale.h"

BufferedPaint::BufferedPaint(HWND window) : window_(window) {
    BeginPaint(window_, &paint_);
    GetClientRect(window_, &area_);
    memory_ = MemoryDevice(CreateCompatibleDC(paint_.hdc));
    bitmap_ = BitmapHandle(CreateCompatibleBitmap(paint_.hdc, WidthOf(area_), HeightOf(area_)));
    before_ = SelectObject(memory_.Get(), bitmap_.Get());
}

BufferedPaint::~BufferedPaint() {
    BitBlt(paint_.hdc, 0, 0, WidthOf(area_), HeightOf(area_), memory_.Get(), 0, 0, SRCCOPY);
    SelectObject(memory_.Get(), before_);
    EndPaint(window_, &paint_);
}
