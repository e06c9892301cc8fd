#pragma once

#include "common/ports/AutomationObject.h"

// Take the color off what is selected: it has the part's properties again, and keeps its name.
namespace SelectedProperties {

void ClearFace(AutomationObject& document);

// suppressed: as the feature has it, so that it keeps its suppression state.
void ClearFeature(AutomationObject& document, bool suppressed);

} // namespace SelectedProperties
