#pragma once

#include <chrono>

// Time as code that waits and tries again sees it.
class WaitingClock {
public:
    virtual ~WaitingClock() = default;

    // Since any fixed moment; never goes back.
    [[nodiscard]] virtual std::chrono::milliseconds Now() const = 0;

    // Returns when the time is over; windows are repainted meanwhile, nothing else happens in them.
    virtual void Wait(std::chrono::milliseconds time) = 0;
};
