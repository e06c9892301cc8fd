#pragma once

#include "common/ports/EventPump.h"

#include <functional>

// The program's message loop: ends with the program (PostQuitMessage) and returns its exit code.
int RunMessageLoop();

// The loop of a modal window: ends when the condition is met.  The end of the program ends it too
// and is passed on to the loop outside.
void RunModalLoop(const std::function<bool()>& isDone);

// Processes the messages that are waiting.  The end of the program is passed on to the loop.
class Win32EventPump : public EventPump {
public:
    void ProcessPendingEvents() override;
    [[nodiscard]] bool ProcessEventsWithoutInput() override;
};
