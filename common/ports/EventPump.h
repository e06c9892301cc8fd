#pragma once

// Lets the user interface process the events that are waiting, and returns.
class EventPump {
public:
    virtual ~EventPump() = default;
    virtual void ProcessPendingEvents() = 0;
};
