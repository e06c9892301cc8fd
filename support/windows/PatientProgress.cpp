#include "support/windows/PatientProgress.h"

#include "common/RuntimeError.h"

namespace {

constexpr std::chrono::milliseconds kTick(50);
constexpr unsigned kFewSteps = 64;

} // namespace

void PatientProgress::ShowProgress(const std::string& label, std::int32_t minimum,
                                   std::int32_t maximum) {
    state_ = {label, minimum, maximum, minimum};
    due_ = clock_.Now() + patience_;
    waiting_ = true;
    steps_ = 0;
    // An operation that lets the window handle events is seen by the ticks, any other by its steps.
    ticker_.Start(kTick, [this] { AppearWhenDue(); });
    if (shown_)
        Appear();
    else
        AppearWhenDue();
}

void PatientProgress::AppearWhenDue() {
    if (waiting_ && clock_.Now() >= due_)
        Appear();
}

void PatientProgress::Appear() {
    StopWaiting();
    shown_ = false;
    ProgressForm* window = MadeWindow();
    if (window == nullptr)
        return;
    window->ShowProgress(state_);
    shown_ = true;
}

// The operation matters more than its window.
ProgressForm* PatientProgress::MadeWindow() {
    try {
        return &window_.Get();
    } catch (const RuntimeError&) {
        return nullptr;
    }
}

void PatientProgress::StopWaiting() {
    waiting_ = false;
    ticker_.Stop();
}

void PatientProgress::SetProgress(std::int32_t value) {
    state_.value = value;
    if (shown_)
        window_.Get().SetProgress(value);
    else if (waiting_ && (++steps_ < kFewSteps || steps_ % kFewSteps == 0)) // many are short ones
        AppearWhenDue();
}

void PatientProgress::RefreshProgress() {
    if (shown_)
        window_.Get().RefreshProgress();
}

// Also after an error while it was to be shown.
void PatientProgress::HideProgress() {
    StopWaiting();
    shown_ = false;
    if (ProgressForm* window = window_.IfMade())
        window->HideProgress();
}
