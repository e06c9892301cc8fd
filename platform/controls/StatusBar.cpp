#include "platform/controls/StatusBar.h"

#include "platform/DpiScale.h"
#include "platform/Fonts.h"
#include "platform/Utf16.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kStatusBar{"StatusBar", STATUSCLASSNAMEW, ""};

constexpr int kMargin = 3; // pixels that the platform leaves before and behind the text

} // namespace

StatusBar::StatusBar(ControlHost& host, const ControlPlace& place)
    : Control(host, kStatusBar, place, WS_VISIBLE | SBARS_SIZEGRIP | CCS_BOTTOM) {
    const int toTheEnd = -1;
    Send(SB_SETPARTS, 1, &toTheEnd);
    TipShowsCutText();
}

void StatusBar::SetPanelText(const std::string& text) {
    Send(SB_SETTEXTW, 0, ToUtf16(text).c_str());
}

bool StatusBar::IsTextCut() const {
    RECT panel{};
    Send(SB_GETRECT, 0, &panel);
    return MeasureText(Host().Font(), ToUtf16(Text())).cx > WidthOf(panel) - 2 * kMargin;
}

void StatusBar::FollowForm() {
    Send(WM_SIZE);
}
