#pragma once

#include "common/ColorRecord.h"
#include "common/ports/AutomationObject.h"

#include <array>
#include <optional>

// Red, green, blue, ambient, diffuse, specular, shininess, transparency, emission; 0..1 each.
using MaterialValues = std::array<double, kColorValueCount>;

// What an object carries itself: nothing, or nine values of its own.
using MaterialOverride = std::optional<MaterialValues>;

// An array of nine doubles; an unset color reads as an empty value.
[[nodiscard]] AutomationValue ToAutomationValue(const MaterialOverride& values);

// Exactly nine numbers, as an array of doubles or, as script hosts send it, of variants.  Throws
// RuntimeError TypeMismatch for everything else.
[[nodiscard]] MaterialValues ReadMaterialValues(const AutomationValue& value);
