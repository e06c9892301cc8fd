#include "platform/BannerPictures.h"

#include "platform/Utf16.h"

#include <algorithm>

namespace {

struct SearchTraits {
    using Handle = HANDLE;
    static Handle None() noexcept { return INVALID_HANDLE_VALUE; }
    static bool Close(Handle search) noexcept { return FindClose(search) != FALSE; }
};

std::vector<std::wstring> BitmapFiles(const std::wstring& folder) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found{};
    const UniqueHandle<SearchTraits> search(FindFirstFileW((folder + L"\\*.bmp").c_str(), &found));
    if (!search)
        return names;
    do {
        names.emplace_back(found.cFileName);
    } while (FindNextFileW(search.Get(), &found) != FALSE);
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

BannerPictures::BannerPictures(const std::string& folder) {
    const std::wstring path = ToUtf16(folder);
    for (const std::wstring& name : BitmapFiles(path)) {
        const std::wstring file = std::wstring(path).append(L"\\").append(name);
        // One that cannot be loaded keeps its place, so that the others keep their addresses.
        pictures_.emplace_back(static_cast<HBITMAP>(LoadImageW(
            nullptr, file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    }
}

HBITMAP BannerPictures::Picture(int index) const noexcept {
    return index >= 1 && index <= Count() ? pictures_[static_cast<std::size_t>(index) - 1].Get()
                                          : nullptr;
}
