#include "platform/controls/ProgressBar.h"

#include <commctrl.h>
#include <cstdint>
#include <utility>

namespace {

constexpr ControlKind kProgressBar{"ProgressBar", PROGRESS_CLASSW, ""};

constexpr int kSteps = 200; // finer ones are hardly seen, and each is painted

} // namespace

ProgressBar::ProgressBar(ControlHost& host, const ControlPlace& place)
    : Control(host, kProgressBar, place, WS_VISIBLE | PBS_SMOOTH) {}

void ProgressBar::SetRange(int minimum, int maximum) {
    Send(PBM_SETRANGE32, static_cast<WPARAM>(minimum), maximum);
    Send(PBM_SETPOS, static_cast<WPARAM>(minimum));
    minimum_ = minimum;
    maximum_ = maximum;
    step_ = 0;
}

void ProgressBar::SetValue(int value) {
    const int step = StepOf(value);
    if (std::exchange(step_, step) != step)
        Send(PBM_SETPOS, static_cast<WPARAM>(value));
}

int ProgressBar::StepOf(int value) const noexcept {
    if (value >= maximum_)
        return kSteps;
    if (value <= minimum_)
        return 0;
    const auto passed = static_cast<std::int64_t>(value) - minimum_;
    const auto range = static_cast<std::int64_t>(maximum_) - minimum_;
    return static_cast<int>(passed * kSteps / range);
}
