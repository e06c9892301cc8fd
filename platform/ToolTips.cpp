#include "platform/ToolTips.h"

#include "platform/Fonts.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

void ToolTips::MakeRoomAbove(const std::wstring& text, SIZE picture) {
    const bool hadRoom = std::exchange(hasRoom_, picture.cy > 0);
    if (!hadRoom && !hasRoom_)
        return; // the margins are the platform's own
    const auto font = reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0));
    const LONG width = picture.cx > 0 ? MeasureText(font, text).cx : 0;
    const RECT margin{0, picture.cy, std::max(picture.cx - width, LONG{0}), 0};
    SendMessageW(window_, TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
}

void ToolTips::Relay(const WindowMessage& message) const {
    MSG relayed{};
    relayed.hwnd = message.window;
    relayed.message = message.id;
    relayed.wParam = message.wParam;
    relayed.lParam = message.lParam;
    SendMessageW(window_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void ToolTips::Set(HWND owner, HWND control, bool wanted) {
    if (window_ == nullptr)
        window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                  WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = owner;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (wanted)
        SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
