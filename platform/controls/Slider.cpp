#include "platform/controls/Slider.h"

#include "platform/DpiScale.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kSlider{"Slider", TRACKBAR_CLASSW, ""};
constexpr int kPageStep = 10;

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

void Slider::ApplyScale() {
    Control::ApplyScale();
    Send(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(Scale().FromDesign(18)));
}
