#include "platform/controls/Slider.h"

#include "platform/DpiScale.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kSlider{"Slider", TRACKBAR_CLASSW, ""};
constexpr int kPageStep = 10;
constexpr int kWheelStep = 3;

} // namespace

Slider::Slider(Form& form, const ControlPlace& place, int maximum)
    : Control(form, kSlider, place,
              WS_VISIBLE | WS_TABSTOP | TBS_HORZ | TBS_NOTICKS | TBS_FIXEDLENGTH) {
    Send(TBM_SETRANGE, FALSE, MAKELPARAM(0, maximum));
    Send(TBM_SETLINESIZE, 0, 1);
    Send(TBM_SETPAGESIZE, 0, kPageStep);
    Slider::ApplyScale();
}

void Slider::SetPosition(int position) {
    Send(TBM_SETPOS, TRUE, position);
}

int Slider::Position() const {
    return static_cast<int>(Send(TBM_GETPOS));
}

MessageResult Slider::OnScroll(unsigned code) {
    if (code != TB_ENDTRACK) // the last position has been reported already
        Raise(onMove, Position());
    return 0;
}

// Not every version of the control answers the wheel, and those that do turn it either way.
MessageResult Slider::OnMessage(const WindowMessage& message) {
    if (message.id != WM_MOUSEWHEEL)
        return {};
    wheel_ += GET_WHEEL_DELTA_WPARAM(message.wParam);
    const int notches = wheel_ / WHEEL_DELTA;
    wheel_ %= WHEEL_DELTA;
    const int before = Position();
    SetPosition(before + notches * kWheelStep);
    if (Position() != before)
        Raise(onMove, Position());
    return 0;
}

void Slider::ApplyScale() {
    Control::ApplyScale();
    Send(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(Scale().FromDesign(18)));
}
