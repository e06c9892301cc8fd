#include "platform/IconStrip.h"

#include "platform/PixelBitmap.h"
#include "platform/Utf16.h"

#include <cstring>
#include <utility>

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

} // namespace

BitmapHandle LoadIconStrip(const std::vector<std::string>& names, int size) {
    const auto side = static_cast<std::size_t>(size);
    const std::size_t stripWidth = side * names.size();
    PixelBitmap strip = MakePixelBitmap(static_cast<int>(stripWidth), size);
    if (!strip.handle)
        return {};
    for (std::size_t index = 0; index < names.size(); ++index) {
        const BITMAPINFOHEADER* picture = FindPicture(names[index], size);
        if (picture == nullptr)
            return {};
        const auto* source = reinterpret_cast<const DWORD*>(picture + 1);
        for (std::size_t line = 0; line < side; ++line)
            std::memcpy(strip.pixels + line * stripWidth + index * side, source + line * side,
                        side * sizeof(DWORD));
    }
    return std::move(strip.handle);
}
