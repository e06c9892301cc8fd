#include "tests/e2e/StandInReader.h"

#include "common/ProgramNames.h"
#include "platform/RunningObjects.h"

#include <stdexcept>

namespace {

std::vector<double> ValuesOf(AutomationObject& object) {
    const AutomationValue value = object.Get("MaterialPropertyValues");
    const auto* numbers = std::get_if<std::vector<double>>(&value.data);
    return numbers != nullptr ? *numbers : std::vector<double>();
}

} // namespace

AutomationObjectPtr StandInReader::ActiveDocument() {
    const AutomationObjectPtr application =
        RunningObjects(retry_).GetRunningObject(ProgramNames::SolidWorksClass);
    if (application == nullptr)
        throw std::runtime_error("The stand-in cannot be reached");
    return application->Get("ActiveDoc").AsObject();
}

AutomationObjectPtr StandInReader::FaceAt(int face) {
    AutomationObjectPtr object =
        ActiveDocument()->Get("Body").AsObject()->Get("GetFirstFace").AsObject();
    for (int i = 1; i < face; ++i)
        object = object->Get("GetNextFace").AsObject();
    return object;
}

std::vector<double> StandInReader::FaceValues(int face) {
    return ValuesOf(*FaceAt(face));
}

void StandInReader::SelectFace(int face) {
    FaceAt(face)->Invoke("Select", {false});
}

std::vector<double> StandInReader::ComponentValues(const std::string& name) {
    const AutomationObjectPtr root = ActiveDocument()
                                         ->Get("GetActiveConfiguration")
                                         .AsObject()
                                         ->Get("GetRootComponent")
                                         .AsObject();
    const AutomationValue children = root->Get("GetChildren");
    for (const AutomationValue& child : std::get<AutomationArray>(children.data))
        if (const AutomationObjectPtr object = child.AsObject();
            object->Get("Name2").AsString() == name)
            return ValuesOf(*object);
    throw std::runtime_error("No component " + name);
}

std::vector<double> StandInReader::SelectedValues() {
    const AutomationObjectPtr manager = ActiveDocument()->Get("SelectionManager").AsObject();
    return ValuesOf(*manager->Invoke("GetSelectedObject3", {std::int32_t{1}}).AsObject());
}
