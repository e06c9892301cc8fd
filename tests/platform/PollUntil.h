#pragma once

#include <chrono>
#include <thread>

// True as soon as the condition holds; false when it still does not after the time.
template <typename Condition>
[[nodiscard]] bool PollUntil(Condition condition,
                             std::chrono::milliseconds time = std::chrono::seconds(15)) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}
