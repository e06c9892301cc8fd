#include "platform/NamedCursor.h"

#include "platform/IconList.h"
#include "platform/PixelBitmap.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

CursorHandle MakeCursor(HBITMAP color, HBITMAP mask, int size) {
    const auto tip = static_cast<DWORD>(size / 16);
    ICONINFO parts{FALSE, tip, tip, mask, color};
    return CursorHandle(CreateIconIndirect(&parts));
}

// Painting multiplies the alpha into the channels, a pointer has them without it.
void TakeAlphaOut(std::uint32_t* pixels, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t alpha = pixels[i] >> 24;
        std::uint32_t pixel = alpha << 24;
        for (int shift = 0; shift < 24 && alpha != 0; shift += 8)
            pixel |= std::min<std::uint32_t>((pixels[i] >> shift & 0xFF) * 255 / alpha, 255)
                     << shift;
        pixels[i] = pixel;
    }
}

void Paint(const PixelBitmap& picture, HICON icon, int size,
           const std::function<void(HDC)>& paintBehind) {
    const MemoryDevice memory(CreateCompatibleDC(nullptr));
    const HGDIOBJ before = SelectObject(memory.Get(), picture.handle.Get());
    paintBehind(memory.Get());
    DrawIconEx(memory.Get(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    SelectObject(memory.Get(), before);
    GdiFlush();
}

} // namespace

CursorHandle LoadNamedCursor(const std::string& icon, int size) {
    const IconHandle loaded = LoadNamedIcon(icon, size);
    ICONINFO parts{};
    if (!loaded || GetIconInfo(loaded.Get(), &parts) == FALSE)
        return {};
    const BitmapHandle mask(parts.hbmMask);
    const BitmapHandle color(parts.hbmColor);
    return MakeCursor(color.Get(), mask.Get(), size);
}

CursorHandle LoadNamedCursor(const std::string& icon, int size,
                             const std::function<void(HDC)>& paintBehind) {
    const IconHandle loaded = LoadNamedIcon(icon, size);
    const PixelBitmap picture = MakePixelBitmap(size, -size);
    if (!loaded || !picture.handle)
        return {};
    const auto side = static_cast<std::size_t>(size);
    Paint(picture, loaded.Get(), size, paintBehind);
    TakeAlphaOut(picture.pixels, side * side);
    const std::vector<unsigned char> noMask(side * side); // lines of whole words are shorter
    const BitmapHandle mask(CreateBitmap(size, size, 1, 1, noMask.data()));
    return MakeCursor(picture.handle.Get(), mask.Get(), size);
}
