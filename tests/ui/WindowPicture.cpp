#include "tests/ui/WindowPicture.h"

#include "platform/DpiScale.h"
#include "platform/Handles.h"

#include <algorithm>

WindowPicture PictureOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    WindowPicture picture{WidthOf(area), {}};
    picture.pixels.resize(static_cast<std::size_t>(WidthOf(area) * HeightOf(area)));
    const HDC screen = GetDCEx(window, nullptr, DCX_CACHE); // with what its children show
    const MemoryDevice memory(CreateCompatibleDC(screen));
    const BitmapHandle bitmap(CreateCompatibleBitmap(screen, WidthOf(area), HeightOf(area)));
    const HGDIOBJ before = SelectObject(memory.Get(), bitmap.Get());
    BitBlt(memory.Get(), 0, 0, WidthOf(area), HeightOf(area), screen, 0, 0, SRCCOPY);
    SelectObject(memory.Get(), before);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = WidthOf(area);
    info.bmiHeader.biHeight = -HeightOf(area);
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    GetDIBits(memory.Get(), bitmap.Get(), 0, static_cast<UINT>(HeightOf(area)),
              picture.pixels.data(), &info, DIB_RGB_COLORS);
    ReleaseDC(window, screen);
    return picture;
}

std::string Difference(const WindowPicture& left, const WindowPicture& right) {
    if (left.width != right.width || left.pixels.size() != right.pixels.size())
        return "the sizes differ";
    RECT place{left.width, 1 << 20, 0, 0};
    int count = 0;
    for (std::size_t index = 0; index < left.pixels.size(); ++index) {
        if (left.pixels[index] == right.pixels[index])
            continue;
        const LONG x = static_cast<LONG>(index) % left.width;
        const LONG y = static_cast<LONG>(index) / left.width;
        place = {std::min(place.left, x), std::min(place.top, y), std::max(place.right, x),
                 std::max(place.bottom, y)};
        ++count;
    }
    return std::to_string(count) + " pixels between " + std::to_string(place.left) + "," +
           std::to_string(place.top) + " and " + std::to_string(place.right) + "," +
           std::to_string(place.bottom);
}
