#include "platform/MessageLoop.h"

#include "platform/Form.h"
#include "platform/Guarded.h"

namespace {

void Dispatch(MSG& message) {
    Form* form = Form::FromWindow(message.hwnd);
    bool done = false;
    if (form != nullptr)
        RunGuarded(form->Errors(), [&] { done = form->TranslateKeys(message); });
    if (done)
        return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

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

int RunMessageLoop() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        Dispatch(message);
    return static_cast<int>(message.wParam);
}

void RunModalLoop(const std::function<bool()>& isDone) {
    MSG message{};
    while (!isDone()) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Dispatch(message);
    }
}

void Win32EventPump::ProcessPendingEvents() {
    ForEachPendingMessage(Dispatch);
}

bool Win32EventPump::ProcessEventsWithoutInput() {
    bool escaped = false;
    ForEachPendingMessage([&escaped](MSG& message) {
        if (!IsInput(message.message))
            Dispatch(message);
        else if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
            escaped = true;
    });
    return escaped;
}
