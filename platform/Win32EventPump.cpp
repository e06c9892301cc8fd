#include "platform/Win32EventPump.h"

#include "platform/MessageLoop.h"

#include <functional>
#include <windows.h>

namespace {

// Clicks, moves of the pointer and keys, also those beside the client area.
bool IsInput(UINT message) noexcept {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
}

// The end of the program is passed on to the loop outside.
void ForEachPendingMessage(const std::function<void(MSG&)>& handle) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        handle(message);
    }
}

} // namespace

void Win32EventPump::ProcessPendingEvents() {
    ForEachPendingMessage(DispatchToForm);
}

bool Win32EventPump::ProcessEventsWithoutInput() {
    bool escaped = false;
    ForEachPendingMessage([&escaped](MSG& message) {
        if (!IsInput(message.message))
            DispatchToForm(message);
        else if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
            escaped = true;
    });
    return escaped;
}
