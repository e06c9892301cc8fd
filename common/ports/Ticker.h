#pragma once

#include <chrono>
#include <functional>

// Calls while the user interface handles its events.
class Ticker {
public:
    virtual ~Ticker() = default;

    // From now on at every period, until Stop; instead of what was called before.
    virtual void Start(std::chrono::milliseconds period, std::function<void()> tick) = 0;
    virtual void Stop() noexcept = 0;
};
