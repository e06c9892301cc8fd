#pragma once

#include "common/ports/ProgressView.h"
#include "common/ports/Ticker.h"
#include "common/ports/WaitingClock.h"
#include "support/windows/OnDemand.h"
#include "support/windows/ProgressForm.h"

#include <chrono>

// The progress of operations, of which most are over at once: the window appears, and is made, only
// when one has run for a while.  Where it cannot be made, the operation goes on without it.
class PatientProgress final : public ProgressView {
public:
    // patience: how long an operation runs before its window appears.
    PatientProgress(OnDemand<ProgressForm>& window, Ticker& ticker, const WaitingClock& clock,
                    std::chrono::milliseconds patience)
        : window_(window), ticker_(ticker), clock_(clock), patience_(patience) {}

    void ShowProgress(const std::string& label, std::int32_t minimum,
                      std::int32_t maximum) override;
    void SetProgress(std::int32_t value) override;
    void RefreshProgress() override;
    void HideProgress() override;

private:
    void AppearWhenDue();
    void Appear();
    [[nodiscard]] ProgressForm* MadeWindow(); // null: it cannot be made
    void StopWaiting();

    OnDemand<ProgressForm>& window_;
    Ticker& ticker_;
    const WaitingClock& clock_;
    const std::chrono::milliseconds patience_;
    std::chrono::milliseconds due_{}; // when the window appears
    bool waiting_ = false;
    bool shown_ = false;
    unsigned steps_ = 0; // while it waits
    ProgressState state_;
};
