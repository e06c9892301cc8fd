#include "standin/com/PaintedPane.h"

#include "platform/BufferedPaint.h"
#include "platform/Form.h"
#include "standin/com/Canvas.h"

namespace {

constexpr ControlKind kPane{"PictureBox", WC_STATICW, "Caption"};

} // namespace

PaintedPane::PaintedPane(Form& form, const ControlPlace& place)
    : Control(form, kPane, place, WS_VISIBLE | SS_NOTIFY) {}

MessageResult PaintedPane::OnMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        const BufferedPaint paint(Handle());
        const Canvas canvas(paint.Device(), Owner().Font());
        canvas.Fill(paint.Area(), GetSysColor(COLOR_WINDOW));
        Paint(canvas, paint.Area());
        canvas.Frame(paint.Area(), GetSysColor(COLOR_3DSHADOW), 1);
        return 0;
    }
    case WM_SETTEXT: // a static control would paint itself at once, in its own way
        return DefWindowProcW(message.window, message.id, message.wParam, message.lParam);
    case WM_SIZE: // what stays of the old area is not what belongs there
        Repaint();
        return {};
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnMousePress(PointOf(message), (message.wParam & MK_CONTROL) != 0);
        return 0;
    default:
        return {};
    }
}
