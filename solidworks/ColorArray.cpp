#include "solidworks/ColorArray.h"

#include "common/Numbers.h"
#include "common/RuntimeError.h"

namespace ColorArray {

namespace {

double Scale(std::size_t index) {
    return index <= static_cast<std::size_t>(ColorValue::Blue) ? 255.0 : 100.0;
}

double Element(const AutomationValue& array, std::size_t index) {
    if (const auto* numbers = std::get_if<std::vector<double>>(&array.data))
        if (index < numbers->size())
            return (*numbers)[index];
    if (const auto* values = std::get_if<AutomationArray>(&array.data))
        if (index < values->size())
            return (*values)[index].AsDouble();
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange, ErrorTexts::NotNineNumbers);
}

} // namespace

std::vector<double> FromValues(const ColorValueArray& values) {
    std::vector<double> array(kColorValueCount);
    for (std::size_t index = 0; index < kColorValueCount; ++index)
        array[index] = values[index] / Scale(index);
    return array;
}

ColorValueArray ToValues(const AutomationValue& array) {
    ColorValueArray values{};
    for (std::size_t index = 0; index < kColorValueCount; ++index)
        values[index] = RoundToInt16(Element(array, index) * Scale(index));
    return values;
}

bool IsUsable(const AutomationValue& array) {
    try {
        static_cast<void>(Element(array, 0));
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace ColorArray
