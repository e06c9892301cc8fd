#include "platform/Shortcuts.h"

#include <array>
#include <string_view>

namespace {

template <typename Condition>
AcceleratorHandle MakeTable(const std::vector<ShortcutDesign>& designs, Condition belongs) {
    std::vector<ACCEL> keys;
    for (const ShortcutDesign& design : designs) {
        if (!belongs(design))
            continue;
        const int flags = FVIRTKEY | (design.ctrl ? FCONTROL : 0) | (design.shift ? FSHIFT : 0);
        keys.push_back({static_cast<BYTE>(flags), design.key, static_cast<WORD>(design.command)});
    }
    if (keys.empty())
        return {};
    return AcceleratorHandle(CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
}

bool Takes(const AcceleratorHandle& table, HWND form, MSG& message) {
    return table && TranslateAcceleratorW(form, table.Get(), &message) != 0;
}

bool IsTextEntry(HWND window) {
    std::array<wchar_t, 32> name{};
    const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    const std::wstring_view className(name.data(), static_cast<std::size_t>(length));
    return className == WC_EDITW || className.starts_with(L"RICHEDIT");
}

std::string KeyName(WORD virtualKey, const KeyNames& names) {
    const auto named = names.find(virtualKey);
    if (named != names.end())
        return named->second;
    if (virtualKey >= VK_F1 && virtualKey <= VK_F24)
        return "F" + std::to_string(virtualKey - VK_F1 + 1);
    return {static_cast<char>(virtualKey)};
}

} // namespace

std::string ShortcutName(const ShortcutDesign& design, const KeyNames& names) {
    std::string name;
    if (design.ctrl)
        name += KeyName(VK_CONTROL, names) + "+";
    if (design.shift)
        name += KeyName(VK_SHIFT, names) + "+";
    return name + KeyName(design.key, names);
}

Shortcuts::Shortcuts(const std::vector<ShortcutDesign>& designs)
    : always_(MakeTable(designs,
                        [](const ShortcutDesign& design) {
                            return !design.leavesTextEntryAlone && design.onlyInControl == 0;
                        })),
      outsideText_(MakeTable(
          designs, [](const ShortcutDesign& design) { return design.leavesTextEntryAlone; })) {
    for (const ShortcutDesign& wanted : designs)
        if (wanted.onlyInControl != 0)
            inControl_.try_emplace(
                wanted.onlyInControl,
                MakeTable(designs, [control = wanted.onlyInControl](const ShortcutDesign& design) {
                    return design.onlyInControl == control;
                }));
}

bool Shortcuts::Translate(HWND form, MSG& message) const {
    if (Takes(always_, form, message))
        return true;
    if (!IsTextEntry(message.hwnd) && Takes(outsideText_, form, message))
        return true;
    const auto here = inControl_.find(GetDlgCtrlID(GetFocus()));
    return here != inControl_.end() && Takes(here->second, form, message);
}
