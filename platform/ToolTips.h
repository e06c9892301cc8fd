#pragma once

#include <windows.h>

// The tool-tip window of a form; its owner destroys it.
class ToolTips {
public:
    // Whether the control may have a tool tip; its text is asked from the owner when it is to be
    // shown (TTN_GETDISPINFOW, idFrom: the control).
    void Set(HWND owner, HWND control, bool wanted);
    [[nodiscard]] HWND Window() const noexcept { return window_; } // null: there is none yet

private:
    HWND window_ = nullptr;
};
