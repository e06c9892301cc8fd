#include "platform/Win32WaitingClock.h"

#include <windows.h>

namespace {

// Looking for messages also delivers those that were sent.
void PaintWindows() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE)) {
        if (message.message == WM_QUIT) { // passes every filter; it is for the program's own loop
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        DispatchMessageW(&message);
    }
}

} // namespace

std::chrono::milliseconds Win32WaitingClock::Now() const {
    return std::chrono::milliseconds(GetTickCount64());
}

void Win32WaitingClock::Wait(std::chrono::milliseconds time) {
    const std::chrono::milliseconds end = Now() + time;
    for (auto left = time; left.count() > 0; left = end - Now()) {
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(left.count()),
                                    QS_PAINT | QS_SENDMESSAGE, 0);
        PaintWindows();
    }
}
