#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

class AutomationObject;
struct AutomationValue;

using AutomationObjectPtr = std::shared_ptr<AutomationObject>;
using AutomationArray = std::vector<AutomationValue>;

// What travels in an automation call.  std::monostate is the empty variant; a null object pointer
// is "Nothing"; a vector of doubles is an array of doubles (one dimension, lower bound 0); an
// AutomationArray is an array of variants.  Strings are UTF-8.
struct AutomationValue {
    using Storage = std::variant<std::monostate, bool, std::int32_t, double, std::string,
                                 AutomationObjectPtr, std::vector<double>, AutomationArray>;
    Storage data;

    AutomationValue() = default;
    AutomationValue(bool value) : data(value) {}
    AutomationValue(std::int32_t value) : data(value) {}
    AutomationValue(double value) : data(value) {}
    AutomationValue(const char* value) : data(std::string(value)) {}
    AutomationValue(std::string value) : data(std::move(value)) {}
    AutomationValue(AutomationObjectPtr value) : data(std::move(value)) {}
    AutomationValue(std::vector<double> value) : data(std::move(value)) {}
    AutomationValue(AutomationArray value) : data(std::move(value)) {}

    [[nodiscard]] bool IsEmpty() const noexcept {
        return std::holds_alternative<std::monostate>(data);
    }

    // Each throws RuntimeError TypeMismatch (or Overflow) when the value is of another kind and
    // does not convert; numbers, booleans and number texts convert among each other.
    [[nodiscard]] double AsDouble() const;
    [[nodiscard]] std::int32_t AsInt32() const;
    [[nodiscard]] std::string AsString() const;
    // Booleans of the other side are compared with 0.
    [[nodiscard]] bool AsBoolean() const;
    // Null for "Nothing" and for an empty value.
    [[nodiscard]] AutomationObjectPtr AsObject() const;
};
