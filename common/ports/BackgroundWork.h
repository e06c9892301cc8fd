#pragma once

#include <functional>

// Work beside that of the windows, one piece at a time.
class BackgroundWork {
public:
    virtual ~BackgroundWork() = default;

    // Waits for the piece before it.  work: does not throw; touches nothing that the starting
    // thread changes meanwhile.
    virtual void Start(std::function<void()> work) = 0;

    [[nodiscard]] virtual bool IsBusy() const = 0;
    virtual void Wait() = 0; // until nothing is left to do
};
