#pragma once

#include "common/ports/WaitingClock.h"

// GetTickCount64, and a wait that answers paint messages and messages sent by other threads.  Input
// stays in the queue.
class Win32WaitingClock : public WaitingClock {
public:
    [[nodiscard]] std::chrono::milliseconds Now() const override;
    void Wait(std::chrono::milliseconds time) override;
};
