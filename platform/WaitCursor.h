#pragma once

#include <windows.h>

// The hour-glass, for as long as the object lives.
class WaitCursor {
public:
    WaitCursor() noexcept : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { SetCursor(before_); }

private:
    HCURSOR before_;
};
