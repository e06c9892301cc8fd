#include "common/AutomationValue.h"

#include "common/Numbers.h"
#include "common/RuntimeError.h"

namespace {

[[noreturn]] void ThrowTypeMismatch() {
    throw RuntimeError(ErrorNumber::TypeMismatch, ErrorTexts::WrongKindOfValue);
}

std::string WholeOrShortest(double number) {
    return number == RoundHalfToEven(number) && number > -1e15 && number < 1e15
               ? std::to_string(static_cast<std::int64_t>(number))
               : std::to_string(number);
}

} // namespace

double AutomationValue::AsDouble() const {
    if (const auto* flag = std::get_if<bool>(&data))
        return *flag ? -1.0 : 0.0;
    if (const auto* whole = std::get_if<std::int32_t>(&data))
        return *whole;
    if (const auto* number = std::get_if<double>(&data))
        return *number;
    if (const auto* text = std::get_if<std::string>(&data))
        return TextToDouble(*text);
    ThrowTypeMismatch();
}

std::int32_t AutomationValue::AsInt32() const {
    return RoundToInt32(AsDouble());
}

std::string AutomationValue::AsString() const {
    if (const auto* text = std::get_if<std::string>(&data))
        return *text;
    return WholeOrShortest(AsDouble());
}

bool AutomationValue::AsBoolean() const {
    return AsDouble() != 0;
}

AutomationObjectPtr AutomationValue::AsObject() const {
    if (IsEmpty())
        return nullptr;
    if (const auto* object = std::get_if<AutomationObjectPtr>(&data))
        return *object;
    ThrowTypeMismatch();
}
