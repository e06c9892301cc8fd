#include "standin/model/MaterialValues.h"

#include "common/RuntimeError.h"

#include <algorithm>

namespace {

// The run-time error for an argument that a member does not take.
constexpr int kInvalidArgument = 5;

void RequireNine(std::size_t count) {
    if (count != kColorValueCount)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           "A colour is an array of 9 numbers, not of " + std::to_string(count));
}

void RequireRange(double value) {
    if (!(value >= 0 && value <= 1)) // neither what is not a number
        throw RuntimeError(kInvalidArgument, "A colour's numbers are from 0 to 1");
}

} // namespace

AutomationValue ToAutomationValue(const MaterialOverride& values) {
    if (!values)
        return {};
    return std::vector<double>(values->begin(), values->end());
}

MaterialValues ReadMaterialValues(const AutomationValue& value) {
    MaterialValues result{};
    if (const auto* numbers = std::get_if<std::vector<double>>(&value.data)) {
        RequireNine(numbers->size());
        std::copy(numbers->begin(), numbers->end(), result.begin());
    } else if (const auto* variants = std::get_if<AutomationArray>(&value.data)) {
        RequireNine(variants->size());
        std::transform(variants->begin(), variants->end(), result.begin(),
                       [](const AutomationValue& element) { return element.AsDouble(); });
    } else {
        throw RuntimeError(ErrorNumber::TypeMismatch, "A colour is an array of 9 numbers");
    }
    std::for_each(result.begin(), result.end(), RequireRange);
    return result;
}
