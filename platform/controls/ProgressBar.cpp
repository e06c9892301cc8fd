#include "platform/controls/ProgressBar.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kProgressBar{"ProgressBar", PROGRESS_CLASSW, ""};

} // namespace

ProgressBar::ProgressBar(Form& form, const ControlPlace& place)
    : Control(form, kProgressBar, place, WS_VISIBLE | PBS_SMOOTH) {}

void ProgressBar::SetRange(int minimum, int maximum) {
    Send(PBM_SETRANGE32, static_cast<WPARAM>(minimum), maximum);
    SetValue(minimum);
}

void ProgressBar::SetValue(int value) {
    Send(PBM_SETPOS, static_cast<WPARAM>(value));
}
