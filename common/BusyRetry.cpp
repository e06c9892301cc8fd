#include "common/BusyRetry.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds kPatience = 30s;
constexpr std::chrono::milliseconds kPause = 200ms;

} // namespace

void BusyRetry::RepeatWhileBusy(const std::function<bool()>& attempt) {
    const std::chrono::milliseconds start = clock_.Now();
    while (attempt()) {
        if (isStopped_ && isStopped_())
            throw OperationStopped();
        if (clock_.Now() - start >= kPatience)
            return;
        clock_.Wait(kPause);
    }
}

StoppableCalls::StoppableCalls(BusyRetry& retry, BusyRetry::StopQuestion isStopped)
    : retry_(retry) {
    retry_.isStopped_ = std::move(isStopped);
}

StoppableCalls::~StoppableCalls() {
    retry_.isStopped_ = nullptr;
}
