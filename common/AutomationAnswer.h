#pragma once

#include "common/AutomationValue.h"

#include <cstdint>
#include <string>
#include <utility>

// What a member answered.  An answer of another kind than is asked for is an error that names the
// member.
class AutomationAnswer : public AutomationValue {
public:
    AutomationAnswer() = default;
    AutomationAnswer(AutomationValue value, std::string member)
        : AutomationValue(std::move(value)), member_(std::move(member)) {}

    [[nodiscard]] const std::string& Member() const noexcept { return member_; }

    // As those of AutomationValue.
    [[nodiscard]] double AsDouble() const;
    [[nodiscard]] std::int32_t AsInt32() const;
    [[nodiscard]] std::string AsString() const;
    [[nodiscard]] bool AsBoolean() const;
    [[nodiscard]] AutomationObjectPtr AsObject() const;

private:
    std::string member_;
};
