#include "common/BusyRetry.h"

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds kPatience = 30s;
constexpr std::chrono::milliseconds kPause = 200ms;

} // namespace

std::optional<std::chrono::milliseconds> PauseBeforeRetry(std::chrono::milliseconds elapsed) {
    if (elapsed >= kPatience)
        return std::nullopt;
    return kPause;
}

void BusyRetry::RepeatWhileBusy(const std::function<bool()>& attempt) {
    const std::chrono::milliseconds start = clock_.Now();
    while (attempt()) {
        const auto pause = PauseBeforeRetry(clock_.Now() - start);
        if (!pause)
            return;
        clock_.Wait(*pause);
    }
}
