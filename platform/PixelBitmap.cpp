#include "platform/PixelBitmap.h"

#include <utility>

PixelBitmap MakePixelBitmap(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    BitmapHandle handle(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    return {std::move(handle), static_cast<std::uint32_t*>(bits)};
}
