#include "standin/com/PaintedPane.h"

namespace {

constexpr ControlKind kPane{"PictureBox", WC_STATICW, "Caption"};

} // namespace

PaintedPane::PaintedPane(ControlHost& host, const ControlPlace& place)
    : Painted(host, kPane, place, WS_VISIBLE | SS_NOTIFY) {}

void PaintedPane::Paint(const Canvas& canvas, const RECT& area) const {
    canvas.Fill(area, GetSysColor(COLOR_WINDOW));
    PaintInside(canvas, area);
    canvas.Frame(area, GetSysColor(COLOR_3DSHADOW), 1);
}

MessageResult PaintedPane::OnMessage(const WindowMessage& message) {
    if (message.id != WM_LBUTTONDOWN && message.id != WM_LBUTTONDBLCLK)
        return Painted::OnMessage(message);
    OnMousePress(PointOf(message), (message.wParam & MK_CONTROL) != 0);
    return 0;
}
