#pragma once

#include "common/RuntimeError.h"
#include "common/ports/WaitingClock.h"

#include <functional>

// The user does not want to go on with a long operation, nor to wait for it.
class OperationStopped : public RuntimeError {
public:
    OperationStopped() : RuntimeError(ErrorNumber::UserInterrupt, "Stopped by the user") {}
};

// Repeats calls into another program that is busy: the one place where such calls are repeated, so
// that a call has one limit of 30 seconds, whatever it consists of.
class BusyRetry {
public:
    using StopQuestion = std::function<bool()>;

    explicit BusyRetry(WaitingClock& clock) : clock_(clock) {}

    // attempt: makes the call and returns true when it was rejected because the other side is busy.
    // It is made once, and then again with pauses as long as it returns true and the time lasts;
    // after 30 seconds the rejection counts as a failure.  Throws OperationStopped as
    // StoppableCalls says.
    void RepeatWhileBusy(const std::function<bool()>& attempt);

private:
    friend class StoppableCalls;

    WaitingClock& clock_;
    StopQuestion isStopped_;
};

// As long as one of these lives the user can stop waiting: each time a call was rejected isStopped
// is asked, and when it says true the call throws OperationStopped instead of being repeated.
class StoppableCalls {
public:
    StoppableCalls(BusyRetry& retry, BusyRetry::StopQuestion isStopped);
    ~StoppableCalls();
    StoppableCalls(const StoppableCalls&) = delete;
    StoppableCalls& operator=(const StoppableCalls&) = delete;

private:
    BusyRetry& retry_;
};
