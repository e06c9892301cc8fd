#pragma once

#include <string>
#include <windows.h>

// The tool-tip window of a form; its owner destroys it.
class ToolTips {
public:
    // An empty text takes the tool tip away.
    void Set(HWND owner, HWND control, const std::string& text);

private:
    HWND window_ = nullptr;
};
