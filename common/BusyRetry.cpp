#include "common/BusyRetry.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds kPatience = 30s;
constexpr std::chrono::milliseconds kPause = 200ms;
constexpr std::chrono::milliseconds kLongCall = 1s;

// Adds the time that it lives.
class TimeSpent {
public:
    TimeSpent(const WaitingClock& clock, std::chrono::milliseconds& total)
        : clock_(clock), total_(total), start_(clock.Now()) {}
    ~TimeSpent() { total_ += clock_.Now() - start_; }
    TimeSpent(const TimeSpent&) = delete;
    TimeSpent& operator=(const TimeSpent&) = delete;

private:
    const WaitingClock& clock_;
    std::chrono::milliseconds& total_;
    const std::chrono::milliseconds start_;
};

} // namespace

void BusyRetry::RepeatWhileBusy(const std::function<bool()>& attempt) {
    const TimeSpent spent(clock_, spent_);
    const std::chrono::milliseconds start = clock_.Now();
    const bool isRejected = attempt();
    if (isRejected)
        RepeatWatched(attempt, start);
    // What was clicked while nothing could answer is not meant for what comes next.
    if (!isStopped_ && (isRejected || clock_.Now() - start >= kLongCall))
        ThrowIfStopped();
}

void BusyRetry::RepeatWatched(const std::function<bool()>& attempt,
                              std::chrono::milliseconds start) {
    if (!watch_)
        return Repeat(attempt, start);
    watch_->BusyBegins();
    try {
        Repeat(attempt, start);
    } catch (...) {
        watch_->BusyEnds();
        throw;
    }
    watch_->BusyEnds();
}

void BusyRetry::Repeat(const std::function<bool()>& attempt, std::chrono::milliseconds start) {
    do {
        ThrowIfStopped();
        if (clock_.Now() - start >= kPatience)
            return;
        clock_.Wait(kPause);
    } while (attempt());
}

void BusyRetry::ThrowIfStopped() {
    if (isStopped_ ? isStopped_() : watch_ && watch_->DropInput())
        throw OperationStopped();
}

WatchedCalls::WatchedCalls(BusyRetry& retry, BusyWatch& watch) : retry_(retry) {
    retry_.watch_ = &watch;
    retry_.spent_ = {};
}

WatchedCalls::~WatchedCalls() {
    // Many short calls are a long time without an answer, too; what was done stays done.
    if (retry_.spent_ >= kLongCall)
        static_cast<void>(retry_.watch_->DropInput());
    retry_.watch_ = nullptr;
}

StoppableCalls::StoppableCalls(BusyRetry& retry, BusyRetry::StopQuestion isStopped)
    : retry_(retry) {
    retry_.isStopped_ = std::move(isStopped);
}

StoppableCalls::~StoppableCalls() {
    retry_.isStopped_ = nullptr;
}
