#pragma once

#include "common/AutomationAnswer.h"
#include "common/AutomationValue.h"

#include <string>

// One late-bound object.  Members are called by name; a name is resolved at most once per object.
// A failing call throws RuntimeError with the member's name and the other side's own words.
class AutomationObject {
public:
    virtual ~AutomationObject() = default;

    // Calls a method or reads a property.  Arguments in the order in which they are written.
    virtual AutomationValue Invoke(const std::string& member, const AutomationArray& arguments) = 0;

    // Assigns a property.
    virtual void Put(const std::string& member, const AutomationValue& value) = 0;

    // As Invoke; for an answer that is looked at.
    AutomationAnswer Get(const std::string& member, const AutomationArray& arguments = {}) {
        return {Invoke(member, arguments), member};
    }
};

// The platform's service that gets an existing automation object.
class AutomationService {
public:
    virtual ~AutomationService() = default;

    // The running object registered for the class; null for any failure.  Never starts a program.
    [[nodiscard]] virtual AutomationObjectPtr GetRunningObject(const std::string& className) = 0;
};
