#include "platform/controls/StatusBar.h"

#include "platform/Utf16.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kStatusBar{"StatusBar", STATUSCLASSNAMEW, ""};

} // namespace

StatusBar::StatusBar(ControlHost& host, const ControlPlace& place)
    : Control(host, kStatusBar, place, WS_VISIBLE | SBARS_SIZEGRIP | SBARS_TOOLTIPS | CCS_BOTTOM) {
    const int toTheEnd = -1;
    Send(SB_SETPARTS, 1, &toTheEnd);
}

void StatusBar::SetPanelText(const std::string& text) {
    const std::wstring wide = ToUtf16(text);
    Send(SB_SETTEXTW, 0, wide.c_str());
    Send(SB_SETTIPTEXTW, 0, wide.c_str()); // shown while the text is cut
}

void StatusBar::FollowForm() {
    Send(WM_SIZE);
}
