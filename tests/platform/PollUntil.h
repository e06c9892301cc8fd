#pragma once

#include <chrono>
#include <thread>

// How long a test waits for what must come: far longer than it takes on a machine that is busy.
inline constexpr std::chrono::seconds kPatience(30);

// True as soon as the condition holds; false when it still does not after the time.
template <typename Condition>
[[nodiscard]] bool PollUntil(Condition condition, std::chrono::milliseconds time = kPatience) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

// True as soon as the condition has held at twenty looks in a row: for what others may change once
// more.
template <typename Condition>
[[nodiscard]] bool PollUntilItStays(Condition condition) {
    constexpr int kLooks = 20;
    int held = 0;
    return PollUntil([&] {
        held = condition() ? held + 1 : 0;
        return held > kLooks;
    });
}

// Acts, and acts again for as long as that has no effect: a busy machine may lose a click, which a
// person sees and makes again.  False when nothing comes of it.
template <typename Action, typename Condition>
[[nodiscard]] bool ActUntil(Action act, Condition condition) {
    constexpr std::chrono::seconds kPause(3);
    const auto end = std::chrono::steady_clock::now() + kPatience;
    do {
        act();
        if (PollUntil(condition, kPause))
            return true;
    } while (std::chrono::steady_clock::now() < end);
    return false;
}
