#include "platform/IconStrip.h"

#include "platform/PixelBitmap.h"
#include "platform/Utf16.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

namespace {

constexpr WORD kBitsPerPixel = 32;

// A group of icons as the compiler of resources writes it: a header and its pictures.
#pragma pack(push, 2)
struct GroupEntry {
    BYTE width; // 0: 256
    BYTE height;
    BYTE colors;
    BYTE reserved;
    WORD planes;
    WORD bitsPerPixel;
    DWORD size;
    WORD id; // of the picture, as a resource
};
struct GroupHeader {
    WORD reserved;
    WORD type;
    WORD count;
};
#pragma pack(pop)
static_assert(sizeof(GroupEntry) == 14 && sizeof(GroupHeader) == 6);

// Null when there is no such resource; resources stay in memory as long as the program.
const void* ResourceBytes(const wchar_t* name, const wchar_t* type) {
    const HRSRC found = FindResourceW(nullptr, name, type);
    const HGLOBAL loaded = found != nullptr ? LoadResource(nullptr, found) : nullptr;
    return loaded != nullptr ? LockResource(loaded) : nullptr;
}

// The number of the group's picture of just this size; 0 when there is none.  The system's own
// search looks for the one that suits the screen best, and asks for the screen at each.
WORD PictureOfSize(const GroupHeader& group, int size) {
    const std::span entries(reinterpret_cast<const GroupEntry*>(&group + 1), group.count);
    const auto found = std::ranges::find_if(entries, [size](const GroupEntry& entry) {
        return entry.width == size && entry.height == size && entry.bitsPerPixel == kBitsPerPixel;
    });
    return found != entries.end() ? found->id : WORD{0};
}

// The icon's picture of just this size; null when there is none.  Its header counts the lines of
// the colors and of the mask.
const BITMAPINFOHEADER* FindPicture(const std::string& name, int size) {
    const auto* group = static_cast<const GroupHeader*>(
        ResourceBytes(ToUtf16("ICON_" + name).c_str(), RT_GROUP_ICON));
    if (group == nullptr)
        return nullptr;
    const auto* header = static_cast<const BITMAPINFOHEADER*>(
        ResourceBytes(MAKEINTRESOURCEW(PictureOfSize(*group, size)), RT_ICON));
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
