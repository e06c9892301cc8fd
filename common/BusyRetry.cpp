#include "common/BusyRetry.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds kPatience = 30s;
constexpr std::chrono::milliseconds kPause = 200ms;
constexpr std::chrono::milliseconds kLongCall = 1s;

} // namespace

void BusyRetry::RepeatWhileBusy(const std::function<bool()>& attempt) {
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
}

WatchedCalls::~WatchedCalls() {
    retry_.watch_ = nullptr;
}

StoppableCalls::StoppableCalls(BusyRetry& retry, BusyRetry::StopQuestion isStopped)
    : retry_(retry) {
    retry_.isStopped_ = std::move(isStopped);
}

StoppableCalls::~StoppableCalls() {
    retry_.isStopped_ = nullptr;
}
