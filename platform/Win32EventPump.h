#pragma once

#include "common/ports/EventPump.h"

// Processes the messages that are waiting.  The end of the program is passed on to the loop.
class Win32EventPump : public EventPump {
public:
    void ProcessPendingEvents() override;
    [[nodiscard]] bool ProcessEventsWithoutInput() override;
};
