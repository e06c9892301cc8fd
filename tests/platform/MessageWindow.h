#pragma once

#include <windows.h>

// An invisible window of the calling thread, for functions that need one.
class MessageWindow {
public:
    MessageWindow()
        : handle_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                  nullptr, nullptr)) {}
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;
    ~MessageWindow() { DestroyWindow(handle_); }

    [[nodiscard]] HWND Handle() const noexcept { return handle_; }

private:
    HWND handle_;
};
