#pragma once

// Lets the user interface process the events that are waiting, and returns.
class EventPump {
public:
    virtual ~EventPump() = default;
    virtual void ProcessPendingEvents() = 0;

    // The same, but clicks and keys are thrown away.  True when Escape was among them.
    [[nodiscard]] virtual bool ProcessEventsWithoutInput() = 0;
};
