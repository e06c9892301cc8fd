#include "platform/IconStrip.h"

#include "platform/Utf16.h"

#include <cstring>

namespace {

constexpr WORD kBitsPerPixel = 32;

// Null when there is no such resource; resources stay in memory as long as the program.
void* ResourceBytes(const wchar_t* name, const wchar_t* type) {
    const HRSRC found = FindResourceW(nullptr, name, type);
    const HGLOBAL loaded = found != nullptr ? LoadResource(nullptr, found) : nullptr;
    return loaded != nullptr ? LockResource(loaded) : nullptr;
}

// The icon's picture of just this size; null when there is none.  Its header counts the lines of
// the colors and of the mask.
const BITMAPINFOHEADER* FindPicture(const std::string& name, int size) {
    void* directory = ResourceBytes(ToUtf16("ICON_" + name).c_str(), RT_GROUP_ICON);
    if (directory == nullptr)
        return nullptr;
    const int id = LookupIconIdFromDirectoryEx(static_cast<BYTE*>(directory), TRUE, size, size,
                                               LR_DEFAULTCOLOR);
    const auto* header =
        static_cast<const BITMAPINFOHEADER*>(ResourceBytes(MAKEINTRESOURCEW(id), RT_ICON));
    const bool fits = header != nullptr && header->biSize == sizeof *header &&
                      header->biWidth == size && header->biHeight == 2 * size &&
                      header->biBitCount == kBitsPerPixel;
    return fits ? header : nullptr;
}

BitmapHandle MakeStrip(int width, int height, DWORD*& pixels) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = kBitsPerPixel;
    void* bits = nullptr;
    BitmapHandle strip(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    pixels = static_cast<DWORD*>(bits);
    return strip;
}

} // namespace

BitmapHandle LoadIconStrip(const std::vector<std::string>& names, int size) {
    const auto side = static_cast<std::size_t>(size);
    const std::size_t stripWidth = side * names.size();
    DWORD* pixels = nullptr;
    BitmapHandle strip = MakeStrip(static_cast<int>(stripWidth), size, pixels);
    if (!strip)
        return {};
    for (std::size_t index = 0; index < names.size(); ++index) {
        const BITMAPINFOHEADER* picture = FindPicture(names[index], size);
        if (picture == nullptr)
            return {};
        const auto* source = reinterpret_cast<const DWORD*>(picture + 1);
        for (std::size_t line = 0; line < side; ++line)
            std::memcpy(pixels + line * stripWidth + index * side, source + line * side,
                        side * sizeof(DWORD));
    }
    return strip;
}
