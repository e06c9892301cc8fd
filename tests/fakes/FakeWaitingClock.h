#pragma once

#include "common/ports/WaitingClock.h"

#include <vector>

// Time that passes only by waiting.
class FakeWaitingClock : public WaitingClock {
public:
    [[nodiscard]] std::chrono::milliseconds Now() const override { return now; }

    void Wait(std::chrono::milliseconds time) override {
        waits.push_back(time);
        now += time;
    }

    std::chrono::milliseconds now{5000};
    std::vector<std::chrono::milliseconds> waits;
};
