#include "solidworks/SelectedProperties.h"

namespace SelectedProperties {

namespace {

// Color, six material values and "use part properties".  With the part's properties the others
// carry no meaning: zeros.
AutomationArray UsePartProperties() {
    return {std::int32_t{0}, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, true};
}

constexpr const char* kKeepName = "";

} // namespace

void ClearFace(AutomationObject& document) {
    AutomationArray arguments = UsePartProperties();
    arguments.emplace_back(kKeepName);
    document.Invoke("SelectedFaceProperties", arguments);
}

void ClearFeature(AutomationObject& document, bool suppressed) {
    AutomationArray arguments = UsePartProperties();
    arguments.emplace_back(suppressed);
    arguments.emplace_back(kKeepName);
    document.Invoke("SelectedFeatureProperties", arguments);
}

} // namespace SelectedProperties
