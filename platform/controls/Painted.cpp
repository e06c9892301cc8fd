#include "platform/controls/Painted.h"

#include "platform/ClassProcedure.h"

namespace {

LRESULT RepaintAfter(const WindowMessage& message, LRESULT result) {
    RepaintIfShown(message.window);
    return result;
}

} // namespace

void RepaintIfShown(HWND window) {
    if (IsWindowVisible(window) != FALSE)
        InvalidateRect(window, nullptr, FALSE);
}

MessageResult AnswerUnpainted(const WindowMessage& message) {
    switch (message.id) {
    case WM_ERASEBKGND:
        return 1;
    case WM_SETTEXT: // past the class, which would draw the text
    case WM_ENABLE:
        return RepaintAfter(
            message, DefWindowProcW(message.window, message.id, message.wParam, message.lParam));
    case WM_SETFONT:
        return RepaintAfter(message,
                            AnswerOfClass({message.window, message.id, message.wParam, 0}));
    default:
        return {};
    }
}
