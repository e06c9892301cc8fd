#include "platform/DroppedFiles.h"

#include "platform/UniqueHandle.h"
#include "platform/Utf16.h"

#include <shellapi.h>

namespace {

struct DropTraits {
    using Handle = HDROP;
    static Handle None() noexcept { return nullptr; }
    static bool Close(Handle drop) noexcept {
        DragFinish(drop);
        return true;
    }
};

} // namespace

std::vector<std::string> TakeDroppedFiles(WPARAM wParam) {
    const UniqueHandle<DropTraits> drop(reinterpret_cast<HDROP>(wParam));
    std::vector<std::string> files;
    const UINT count = DragQueryFileW(drop.Get(), 0xFFFFFFFF, nullptr, 0);
    for (UINT index = 0; index < count; ++index) {
        std::wstring name(DragQueryFileW(drop.Get(), index, nullptr, 0) + std::size_t{1}, L'\0');
        name.resize(DragQueryFileW(drop.Get(), index, name.data(), static_cast<UINT>(name.size())));
        files.push_back(ToUtf8(name));
    }
    return files;
}
