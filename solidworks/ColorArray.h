#pragma once

#include "common/ColorRecord.h"
#include "common/ports/AutomationObject.h"

#include <vector>

// The nine values as the automation interface keeps them: doubles from 0 to 1 in an array.
namespace ColorArray {

// Red, green and blue divided by 255, the material values by 100.
[[nodiscard]] std::vector<double> FromValues(const ColorValueArray& values);

// Multiplied and rounded, an exact half to the even neighbour.  Throws RuntimeError
// SubscriptOutOfRange for fewer than nine elements, TypeMismatch or Overflow for an element that
// does not convert.
[[nodiscard]] ColorValueArray ToValues(const AutomationValue& array);

// True for an array whose first element can be read as a number.
[[nodiscard]] bool IsUsable(const AutomationValue& array);

} // namespace ColorArray
