#include "platform/IconList.h"

#include "platform/IconStrip.h"
#include "platform/Utf16.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kProgramIcon = 1; // the first of an executable is the one that the shell shows

IconHandle LoadIconResource(const wchar_t* resource, int size) {
    return IconHandle(static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), resource, IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

} // namespace

IconHandle LoadProgramIcon(int size) {
    return LoadIconResource(MAKEINTRESOURCEW(kProgramIcon), size);
}

IconHandle LoadNamedIcon(const std::string& name, int size) {
    return LoadIconResource(ToUtf16("ICON_" + name).c_str(), size);
}

IconList::IconList(std::string name, std::vector<std::string> keys)
    : DesignComponent(std::move(name), "ImageList"), keys_(std::move(keys)) {}

void IconList::Fit(int size) {
    if (std::exchange(size_, size) == size)
        return;
    const int count = static_cast<int>(keys_.size());
    before_ = std::exchange(
        images_, ImageListHandle(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, count, 1)));
    if (const BitmapHandle strip = LoadIconStrip(keys_, size)) {
        ImageList_Add(images_.Get(), strip.Get(), nullptr);
        return;
    }
    ImageList_SetImageCount(images_.Get(), static_cast<UINT>(count));
    for (int index = 0; index < count; ++index) {
        const IconHandle icon = LoadNamedIcon(keys_[static_cast<std::size_t>(index)], size);
        if (icon)
            ImageList_ReplaceIcon(images_.Get(), index, icon.Get());
    }
}

int IconList::IndexOf(const std::string& key) const noexcept {
    const auto found = std::find(keys_.begin(), keys_.end(), key);
    return found != keys_.end() ? static_cast<int>(found - keys_.begin()) : -1;
}
