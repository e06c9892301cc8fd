#pragma once

#include "platform/WindowMessage.h"

#include <functional>
#include <string>
#include <windows.h>

// A tool tip: its text, and a picture above it.
struct ControlTip {
    std::string text;                                  // UTF-8; empty: no tip
    SIZE picture{};                                    // pixels
    std::function<void(HDC device, POINT at)> paint{}; // none: no picture
};

// The tool-tip window of a form; its owner destroys it.
class ToolTips {
public:
    // Whether the control may have a tool tip; its text is asked from the owner when it is to be
    // shown (TTN_GETDISPINFOW, idFrom: the control).
    void Set(HWND owner, HWND control, bool wanted);

    // Tells it of a mouse message that came to a control before the first call for that control.
    void Relay(const WindowMessage& message) const;

    // Makes room for a picture above a text, before the tip with them is shown (TTM_SETMARGIN).
    void MakeRoomAbove(const std::wstring& text, SIZE picture);
    static constexpr POINT kPictureStart{4, 3}; // in the window, pixels

    [[nodiscard]] HWND Window() const noexcept { return window_; } // null: there is none yet

private:
    HWND window_ = nullptr;
    bool hasRoom_ = false; // above the text
};
