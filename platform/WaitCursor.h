#pragma once

#include <windows.h>

// The hour-glass, for as long as the object lives.  When the pointer moves its window is asked for
// the cursor (WM_SETCURSOR), and shows it again.
class WaitCursor {
public:
    WaitCursor() noexcept : before_(Show()) {}
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { SetCursor(before_); }

    // Now; gives the cursor that was shown before.
    static HCURSOR Show() noexcept { return SetCursor(LoadCursorW(nullptr, IDC_WAIT)); }

private:
    HCURSOR before_;
};
