#pragma once

#include "platform/Handles.h"

#include <cstdint>

// A bitmap of 32 bits a pixel whose pixels are in memory; without a handle when there is no memory.
struct PixelBitmap {
    BitmapHandle handle;
    std::uint32_t* pixels = nullptr; // 0xAARRGGBB each, for as long as the handle is held
};

// Pixels; a negative height: the rows stand from the top (CreateDIBSection).
[[nodiscard]] PixelBitmap MakePixelBitmap(int width, int height);
