#include "platform/AlphaPainter.h"

#include <algorithm>
#include <cstddef>
#include <utility>

AlphaPainter::~AlphaPainter() {
    if (before_ != nullptr)
        SelectObject(memory_.Get(), before_);
}

void AlphaPainter::Paint(HDC device, POINT at, int size, const std::uint32_t* pixels) {
    if (!Fit(size))
        return;
    GdiFlush(); // what was painted before may still read the pixels
    std::copy_n(pixels, static_cast<std::size_t>(size) * static_cast<std::size_t>(size),
                bitmap_.pixels);
    constexpr BLENDFUNCTION kByAlpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    GdiAlphaBlend(device, at.x, at.y, size, size, memory_.Get(), 0, 0, size, size, kByAlpha);
}

// False: there is no memory.
bool AlphaPainter::Fit(int size) {
    if (size_ == size)
        return true;
    if (!memory_)
        memory_ = MemoryDevice(CreateCompatibleDC(nullptr));
    PixelBitmap fitting = MakePixelBitmap(size, -size);
    if (!memory_ || !fitting.handle)
        return false;
    const HGDIOBJ previous = SelectObject(memory_.Get(), fitting.handle.Get());
    if (before_ == nullptr)
        before_ = previous;
    bitmap_ = std::move(fitting);
    size_ = size;
    return true;
}
