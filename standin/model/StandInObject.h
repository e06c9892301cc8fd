#pragma once

#include "common/ports/AutomationObject.h"

#include <optional>
#include <string>

// An automation object of the stand-in: besides being called, it can name itself and its members.
class StandInObject : public AutomationObject {
public:
    // What it is and, where it has one, its name in quotation marks: face "Face 3".
    [[nodiscard]] virtual std::string Label() const = 0;

    // The member as it is spelled here, whatever the letter case of `name`; none for an unknown
    // one.
    [[nodiscard]] virtual std::optional<std::string> FindMember(const std::string& name) const = 0;
};

using StandInObjectPtr = std::shared_ptr<StandInObject>;
