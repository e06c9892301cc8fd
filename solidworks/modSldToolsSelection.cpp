#include "common/Text.h"
#include "solidworks/ColorArray.h"
#include "solidworks/ColorSources.h"
#include "solidworks/ResultKey.h"
#include "solidworks/SolidWorksSession.h"
#include "solidworks/modSldTools.h"

#include <functional>

// Colors from and to the selection.

namespace {

using ColorSources::kValues;
using ColorSources::Probe;

AutomationAnswer ColorOfFeature(const AutomationObjectPtr& feature, AutomationObject& document) {
    AutomationAnswer array;
    if (feature)
        array = Probe([&] { return feature->Get(ColorSources::kValuesOfFeature); });
    return ColorArray::IsUsable(array) ? array : Probe([&] { return document.Get(kValues); });
}

AutomationAnswer ColorOfFace(const AutomationObjectPtr& face, AutomationObject& document) {
    if (!face)
        return ColorOfFeature(nullptr, document);
    AutomationAnswer array = Probe([&] { return face->Get(kValues); });
    if (ColorArray::IsUsable(array))
        return array;
    return ColorOfFeature(ColorSources::ProbeObject(*face, "GetFeature"), document);
}

AutomationAnswer ColorOfComponent(const AutomationObjectPtr& component,
                                  AutomationObject& document) {
    AutomationObject& asked = component ? *component : document;
    AutomationAnswer array = Probe([&] { return asked.Get(kValues); });
    if (ColorArray::IsUsable(array) || !component)
        return array;
    return Probe([&] { return RequiredObject(component->Get("GetModelDoc"))->Get(kValues); });
}

AutomationAnswer ColorOfSelected(std::int32_t type, const AutomationObjectPtr& object,
                                 AutomationObject& document) {
    switch (type) {
    case SelectionType::Face:
        return ColorOfFace(object, document);
    case SelectionType::Component:
        return ColorOfComponent(object, document);
    default:
        return ColorOfFeature(object, document);
    }
}

void Fill(ColorRecord& color, const AutomationAnswer& array) {
    color.values = ColorSources::Values(array);
    color.name = ColorSources::kNameOfReadColor;
}

// Colors one selected object; an object of another kind is reported and left alone.
void SetColorOfSelected(const SolidWorksSelection& selection, std::int32_t index,
                        const std::vector<double>& array, AutomationObject& document,
                        std::string& report) {
    const AutomationObjectPtr object = selection.ObjectAt(index);
    if (!object) {
        document.Put(kValues, array);
        return;
    }
    const std::int32_t type = selection.TypeAt(index);
    if (type == SelectionType::Face || type == SelectionType::Component)
        object->Put(kValues, array);
    else if (type == SelectionType::BodyFeature)
        object->Invoke("SetMaterialPropertyValues", {array});
    else
        report += kLineBreak + (ResultKey::NoValidSelection + std::to_string(type));
}

// Colors the document when nothing is selected, else what is at each index; then rebuilds once.
void ColorSelection(AutomationObject& document, const std::vector<double>& array,
                    const std::function<void(const SolidWorksSelection&, std::int32_t)>& colorAt) {
    const SolidWorksSelection selection(document);
    const std::int32_t count = selection.Count();
    if (count == 0)
        document.Put(kValues, array);
    for (std::int32_t index = 1; index <= count; ++index)
        colorAt(selection, index);
    document.Invoke("EditRebuild", {});
}

} // namespace

std::string modSldTools::SWXGetColor(ColorRecord& color) {
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::PartOrAssembly);
        !refusal.empty())
        return refusal;
    const SolidWorksSelection selection(session.Document());
    if (selection.Count() == 0) {
        Fill(color, session.Document().Get(kValues));
        return ResultKey::ColorRead;
    }
    // Only the first selected object counts, on purpose.
    const AutomationObjectPtr object = selection.ObjectAt(1);
    const std::int32_t type = selection.TypeAt(1);
    if (!SelectionType::CarriesColor(type))
        return ResultKey::NoValidSelection + std::to_string(type);
    const AutomationAnswer array = ColorOfSelected(type, object, session.Document());
    if (!ColorArray::IsUsable(array))
        return ResultKey::NoColorValueFound + std::to_string(type);
    Fill(color, array);
    return ResultKey::ColorRead;
}

std::string modSldTools::SWXSetColor(const ColorRecord& color) {
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::PartOrAssembly);
        !refusal.empty())
        return refusal;
    AutomationObject& document = session.Document();
    const std::vector<double> array = ColorArray::FromValues(color.values);
    std::string report;
    ColorSelection(document, array, [&](const SolidWorksSelection& selection, std::int32_t index) {
        SetColorOfSelected(selection, index, array, document, report);
    });
    return report.empty() ? ResultKey::Okay : report;
}

std::string modSldTools::SWXSetColorComponent(const ColorRecord& color) {
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::Assembly); !refusal.empty())
        return refusal;
    AutomationObject& document = session.Document();
    const std::vector<double> array = ColorArray::FromValues(color.values);
    ColorSelection(document, array, [&](const SolidWorksSelection& selection, std::int32_t index) {
        const AutomationObjectPtr component = selection.ComponentAt(index);
        (component ? *component : document).Put(kValues, array);
    });
    return ResultKey::Okay;
}
