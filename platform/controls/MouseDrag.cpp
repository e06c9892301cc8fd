#include "platform/controls/MouseDrag.h"

#include "platform/controls/Control.h"

#include <utility>

void MouseDrag::Begin(POINT at) {
    underWay_ = true;
    pointer_ = at;
    SetCapture(window_);
}

void MouseDrag::End() {
    if (!std::exchange(underWay_, false))
        return;
    if (GetCapture() == window_)
        ReleaseCapture();
    // The control saw the button go down.  Beside everything it shows it takes the button's release
    // for no click.
    SendMessageW(window_, WM_LBUTTONUP, 0, MAKELPARAM(-1, -1));
}

void MouseDrag::Cancel() {
    if (!underWay_)
        return;
    End();
    Raise(onCancel);
}

MessageResult MouseDrag::OnMessage(const WindowMessage& message) {
    if (!underWay_)
        return {};
    switch (message.id) {
    case WM_MOUSEMOVE:
        Follow(message);
        if ((message.wParam & MK_LBUTTON) != 0)
            Raise(onMove);
        else
            Cancel(); // released while the system had the mouse
        return 0;
    case WM_LBUTTONUP:
        Follow(message);
        End();
        Raise(onDrop);
        return 0;
    case WM_RBUTTONDOWN:
    case WM_CAPTURECHANGED:
        Cancel();
        return 0;
    default:
        return {};
    }
}

void MouseDrag::Follow(const WindowMessage& message) noexcept {
    pointer_ = PointOf(message);
    ClientToScreen(window_, &pointer_);
}
