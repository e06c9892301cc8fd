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
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Dispatch(message);
    }
}
