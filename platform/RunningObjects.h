#pragma once

#include "common/BusyRetry.h"
#include "common/ports/AutomationObject.h"

// The running-object service: CLSIDFromProgID and GetActiveObject.
class RunningObjects : public AutomationService {
public:
    // retry must outlive the objects that are returned.
    explicit RunningObjects(BusyRetry& retry) : retry_(retry) {}

    [[nodiscard]] AutomationObjectPtr GetRunningObject(const std::string& className) override;

private:
    BusyRetry& retry_;
};
