#include "platform/controls/Frame.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kFrame{"Frame", WC_BUTTONW, "Caption"};

} // namespace

Frame::Frame(ControlHost& host, const ControlPlace& place)
    : Control(host, kFrame, place, BS_GROUPBOX | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT) {}

MessageResult Frame::OnMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_HSCROLL:
    case WM_CTLCOLORSTATIC:
        return SendMessageW(GetParent(message.window), message.id, message.wParam, message.lParam);
    case WM_ERASEBKGND: {
        // A group box paints its line and caption only.
        RECT area{};
        GetClientRect(message.window, &area);
        FillRect(reinterpret_cast<HDC>(message.wParam), &area, GetSysColorBrush(COLOR_3DFACE));
        return 1;
    }
    default:
        return {};
    }
}
