#pragma once

#include "common/ports/AutomationObject.h"

#include <string>

// A value as text, always the same for the same value and independent of regional settings:
// Empty, Nothing, True, 3, 3.0 (a double), "text" (with \" \\ \r \n), face "Face 3",
// [1, 0.5] (an array of doubles), Array(1, "a") (an array of variants).  Doubles have the 17 digits
// that tell any two of them apart, without trailing zeros.
[[nodiscard]] std::string CallText(const AutomationValue& value);
