#pragma once

#include "platform/PixelBitmap.h"

#include <cstdint>

// Paints square pictures with an alpha channel over what a device shows.  It holds one bitmap, for
// pictures of the size that was painted last.
class AlphaPainter {
public:
    AlphaPainter() = default;
    AlphaPainter(const AlphaPainter&) = delete;
    AlphaPainter& operator=(const AlphaPainter&) = delete;
    ~AlphaPainter();

    // pixels: size * size values 0xAARRGGBB from the top, the alpha multiplied in (GdiAlphaBlend).
    void Paint(HDC device, POINT at, int size, const std::uint32_t* pixels);

private:
    bool Fit(int size);

    MemoryDevice memory_;
    PixelBitmap bitmap_;
    HGDIOBJ before_ = nullptr;
    int size_ = 0;
};
