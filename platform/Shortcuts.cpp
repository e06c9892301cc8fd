#include "platform/Shortcuts.h"

#include "platform/Utf16.h"

#include <array>
#include <string_view>

namespace {

AcceleratorHandle MakeTable(const std::vector<ShortcutDesign>& designs, bool leavesTextEntryAlone) {
    std::vector<ACCEL> keys;
    for (const ShortcutDesign& design : designs) {
        if (design.leavesTextEntryAlone != leavesTextEntryAlone)
            continue;
        const int flags = FVIRTKEY | (design.ctrl ? FCONTROL : 0) | (design.shift ? FSHIFT : 0);
        keys.push_back({static_cast<BYTE>(flags), design.key, static_cast<WORD>(design.command)});
    }
    if (keys.empty())
        return {};
    return AcceleratorHandle(CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
}

bool IsTextEntry(HWND window) {
    std::array<wchar_t, 32> name{};
    const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    const std::wstring_view className(name.data(), static_cast<std::size_t>(length));
    return className == WC_EDITW || className.starts_with(L"RICHEDIT");
}

std::wstring KeyName(UINT virtualKey) {
    constexpr LONG kExtendedKey = 1 << 24; // tells Delete from the numeric pad's key
    const UINT scanCode = MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC);
    const LONG extended = virtualKey == VK_DELETE ? kExtendedKey : 0;
    std::array<wchar_t, 64> name{};
    const int length = GetKeyNameTextW(static_cast<LONG>(scanCode << 16) | extended, name.data(),
                                       static_cast<int>(name.size()));
    return {name.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string ShortcutName(const ShortcutDesign& design) {
    std::wstring name;
    if (design.ctrl)
        name += KeyName(VK_CONTROL) + L"+";
    if (design.shift)
        name += KeyName(VK_SHIFT) + L"+";
    return ToUtf8(name + KeyName(design.key));
}

Shortcuts::Shortcuts(const std::vector<ShortcutDesign>& designs)
    : always_(MakeTable(designs, false)), outsideText_(MakeTable(designs, true)) {}

bool Shortcuts::Translate(HWND form, MSG& message) const {
    if (always_ && TranslateAcceleratorW(form, always_.Get(), &message) != 0)
        return true;
    return outsideText_ && !IsTextEntry(message.hwnd) &&
           TranslateAcceleratorW(form, outsideText_.Get(), &message) != 0;
}
