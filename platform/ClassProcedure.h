#pragma once

#include "platform/WindowMessage.h"

// What the window's class does with the message, past every procedure that was put before its own.
inline LRESULT AnswerOfClass(const WindowMessage& message) {
    const auto procedure =
        reinterpret_cast<WNDPROC>(GetClassLongPtrW(message.window, GCLP_WNDPROC));
    return CallWindowProcW(procedure, message.window, message.id, message.wParam, message.lParam);
}
