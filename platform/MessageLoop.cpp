#include "platform/MessageLoop.h"

#include "platform/Form.h"
#include "platform/Guarded.h"

void DispatchToForm(MSG& message) {
    Form* form = Form::FromWindow(message.hwnd);
    bool done = false;
    if (form != nullptr)
        RunGuarded(form->Errors(), [&] { done = form->TranslateKeys(message); });
    if (done)
        return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

int RunMessageLoop() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchToForm(message);
    return static_cast<int>(message.wParam);
}

void RunModalLoop(const std::function<bool()>& isDone) {
    MSG message{};
    while (!isDone()) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        DispatchToForm(message);
    }
}
