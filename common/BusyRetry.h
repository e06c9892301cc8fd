#pragma once

#include "common/ports/WaitingClock.h"

#include <chrono>
#include <functional>
#include <optional>

// How long to wait before a call that a busy program rejected is tried again; elapsed: since its
// first attempt.  Nothing after 30 seconds: the rejection counts as a failure then.
[[nodiscard]] std::optional<std::chrono::milliseconds>
PauseBeforeRetry(std::chrono::milliseconds elapsed);

// Repeats calls into another program that is busy.
class BusyRetry {
public:
    explicit BusyRetry(WaitingClock& clock) : clock_(clock) {}

    // attempt: makes the call and returns true when it was rejected because the other side is busy.
    // It is made once, and then again with pauses as long as it returns true and the time lasts.
    void RepeatWhileBusy(const std::function<bool()>& attempt);

private:
    WaitingClock& clock_;
};
