#include "tests/ui/MainFormTest.h"

#include "platform/Utf16.h"
#include "platform/Win32EventPump.h"

#include <array>

namespace {

struct Search {
    int id;
    HWND found;
};

BOOL CALLBACK CompareId(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (GetDlgCtrlID(window) != search.id)
        return TRUE;
    search.found = window;
    return FALSE;
}

} // namespace

HWND FindChild(HWND form, int id) {
    Search search{id, nullptr};
    EnumChildWindows(form, CompareId, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::wstring TextOf(HWND window) {
    std::array<wchar_t, 1024> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::string MenuText(HMENU menu, int command) {
    std::array<wchar_t, 128> text{};
    GetMenuStringW(menu, static_cast<UINT>(command), text.data(), static_cast<int>(text.size()),
                   MF_BYCOMMAND);
    return ToUtf8(text.data());
}

std::string ButtonTip(HWND form, int command) {
    std::array<wchar_t, 128> text{};
    NMTBGETINFOTIPW tip{};
    tip.hdr = {FindChild(form, IDC_tlbarMain), IDC_tlbarMain, static_cast<UINT>(TBN_GETINFOTIPW)};
    tip.iItem = command;
    tip.pszText = text.data();
    tip.cchTextMax = static_cast<int>(text.size());
    SendMessageW(form, WM_NOTIFY, IDC_tlbarMain, reinterpret_cast<LPARAM>(&tip));
    return ToUtf8(text.data());
}

void PumpMessages() {
    Win32EventPump().ProcessPendingEvents();
}

// The release is posted first: controls wait for it while they handle the press.
void Click(HWND window, POINT at) {
    const LPARAM place = MAKELPARAM(at.x, at.y);
    PostMessageW(window, WM_LBUTTONUP, 0, place);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PumpMessages();
}

FormControl* MainFormTest::Control(const std::string& name) {
    for (FormControl* control : form.Controls())
        if (control->Name() == name)
            return control;
    return nullptr;
}
