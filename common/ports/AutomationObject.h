#pragma once

#include <cstdint>
#include <memory>
#include <string>
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
