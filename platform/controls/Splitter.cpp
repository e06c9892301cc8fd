#include "platform/controls/Splitter.h"

#include <commctrl.h>
#include <utility>

namespace {

constexpr ControlKind kSplitter{"Image", WC_STATICW, ""};

} // namespace

Splitter::Splitter(ControlHost& host, const ControlPlace& place)
    : Painted(host, kSplitter, place, WS_VISIBLE | SS_NOTIFY) {}

void Splitter::Paint(const Canvas& canvas, const RECT& area) const {
    canvas.Fill(area, GetSysColor(COLOR_3DFACE));
}

MessageResult Splitter::OnMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, IDC_SIZEWE));
        return 1;
    case WM_LBUTTONDOWN:
        pressed_ = true;
        SetCapture(message.window);
        Raise(onPress);
        return 0;
    case WM_MOUSEMOVE:
        if (pressed_)
            Raise(onDrag, static_cast<int>(PointOf(message).x));
        return 0;
    case WM_LBUTTONUP:
        ReleaseCapture();
        return 0;
    case WM_CAPTURECHANGED:
        if (std::exchange(pressed_, false))
            Raise(onRelease);
        return 0;
    default:
        return Painted::OnMessage(message);
    }
}
