#pragma once

#include "common/ColorRecord.h"
#include "common/ports/AutomationObject.h"

#include <functional>

// Asking SolidWorks for colors: which members tell them, and how a source without one is told.
namespace ColorSources {

// Of faces, components, bodies and documents.
inline constexpr const char* kValues = "MaterialPropertyValues";
inline constexpr const char* kValuesOfFeature = "GetMaterialPropertyValues";

// A color that was read has this name, whatever the user's language.
inline constexpr const char* kNameOfReadColor = "Neuer Farbwert";

// Asks one source of a color.  A call that fails is a source without a usable array, unless
// SolidWorks itself is gone or the user has given up.
[[nodiscard]] AutomationAnswer Probe(const std::function<AutomationAnswer()>& source);

// The object that a member gives, to be asked for its color; null when it gives none or fails.
[[nodiscard]] AutomationObjectPtr ProbeObject(AutomationObject& owner, const char* member);

// The values of a usable array.  Throws RuntimeError that names the member when they are not nine
// numbers.
[[nodiscard]] ColorValueArray Values(const AutomationAnswer& array);

} // namespace ColorSources
