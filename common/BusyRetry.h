#pragma once

#include "common/RuntimeError.h"
#include "common/ports/WaitingClock.h"

#include <chrono>
#include <functional>

// The user does not want to go on with a long operation, nor to wait for it.
class OperationStopped : public RuntimeError {
public:
    OperationStopped() : RuntimeError(ErrorNumber::UserInterrupt, ErrorTexts::StoppedByUser) {}
};

// The user's side of calls into another program that is busy.
class BusyWatch {
public:
    virtual ~BusyWatch() = default;
    // A call was rejected and will be repeated; later: it is over, in whatever way.
    virtual void BusyBegins() = 0;
    virtual void BusyEnds() = 0;
    // Lets go of the clicks and keys that have come meanwhile.  True when one of them was the
    // user's wish not to wait any longer.  Does not throw.
    [[nodiscard]] virtual bool DropInput() = 0;
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
    // StoppableCalls and WatchedCalls say.
    void RepeatWhileBusy(const std::function<bool()>& attempt);

private:
    friend class StoppableCalls;
    friend class WatchedCalls;

    void RepeatWatched(const std::function<bool()>& attempt, std::chrono::milliseconds start);
    void Repeat(const std::function<bool()>& attempt, std::chrono::milliseconds start);
    void ThrowIfStopped();

    WaitingClock& clock_;
    BusyWatch* watch_ = nullptr;
    std::chrono::milliseconds spent_{}; // in calls, since the watch began
    StopQuestion isStopped_;
};

// As long as one of these lives the watch is told when the other program is busy.  Input that came
// while a call was rejected, or took a second or longer, is dropped; when the user has given up
// by it, the call throws OperationStopped.  At the end input is dropped, too, when all calls
// together took a second or longer.
class WatchedCalls {
public:
    WatchedCalls(BusyRetry& retry, BusyWatch& watch);
    ~WatchedCalls();
    WatchedCalls(const WatchedCalls&) = delete;
    WatchedCalls& operator=(const WatchedCalls&) = delete;

private:
    BusyRetry& retry_;
};

// As long as one of these lives the user can stop waiting: each time a call was rejected isStopped
// is asked, and when it says true the call throws OperationStopped instead of being repeated.  No
// input is dropped: isStopped handles it.
class StoppableCalls {
public:
    StoppableCalls(BusyRetry& retry, BusyRetry::StopQuestion isStopped);
    ~StoppableCalls();
    StoppableCalls(const StoppableCalls&) = delete;
    StoppableCalls& operator=(const StoppableCalls&) = delete;

private:
    BusyRetry& retry_;
};
