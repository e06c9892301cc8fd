#include "platform/controls/Slider.h"

#include "platform/DpiScale.h"

#include <commctrl.h>
#include <utility>

namespace {

constexpr ControlKind kSlider{"Slider", TRACKBAR_CLASSW, ""};
constexpr int kPageStep = 10;
constexpr int kWheelStep = 3;

} // namespace

Slider::Slider(ControlHost& host, const ControlPlace& place, int maximum)
    : Control(host, kSlider, place,
              WS_VISIBLE | WS_TABSTOP | TBS_HORZ | TBS_NOTICKS | TBS_FIXEDLENGTH) {
    Send(TBM_SETRANGE, FALSE, MAKELPARAM(0, maximum));
    Send(TBM_SETLINESIZE, 0, 1);
    Send(TBM_SETPAGESIZE, 0, kPageStep);
    Slider::ApplyScale();
}

void Slider::SetPosition(int position) {
    Send(TBM_SETPOS, static_cast<WPARAM>(IsWindowVisible(Handle())), position);
    known_ = Position();
}

int Slider::Position() const {
    return static_cast<int>(Send(TBM_GETPOS));
}

MessageResult Slider::OnScroll(unsigned code) {
    if (code != TB_ENDTRACK) // the last position has been reported already
        ReportMove();
    return 0;
}

// A press, or a step at the end of the range, moves nothing.
void Slider::ReportMove() {
    const int position = Position();
    if (std::exchange(known_, position) != position)
        Raise(onMove, position);
}

// Not every version of the control answers the wheel, and those that do turn it either way.
MessageResult Slider::OnMessage(const WindowMessage& message) {
    if (message.id != WM_MOUSEWHEEL)
        return {};
    wheel_ += GET_WHEEL_DELTA_WPARAM(message.wParam);
    const int notches = wheel_ / WHEEL_DELTA;
    wheel_ %= WHEEL_DELTA;
    Send(TBM_SETPOS, TRUE, Position() + notches * kWheelStep);
    ReportMove();
    return 0;
}

void Slider::ApplyScale() {
    Control::ApplyScale();
    Send(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(Scale().FromDesign(18)));
}
