#include "platform/ToolTips.h"

#include <commctrl.h>

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
