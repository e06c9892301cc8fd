#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "common/ShownProgress.h"
#include "common/Text.h"
#include "solidworks/ResultKey.h"
#include "solidworks/SolidWorksSession.h"
#include "solidworks/modSldTools.h"

// Taking colours off, so that objects show the colour of their parent again.

namespace {

// With the part's own properties the colour and property arguments carry no meaning: zeros.
AutomationArray UsePartProperties() {
    return {std::int32_t{0}, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, true};
}

void ClearSelectedFace(AutomationObject& document) {
    AutomationArray arguments = UsePartProperties();
    arguments.emplace_back("");
    document.Invoke("SelectedFaceProperties", arguments);
}

// suppressed: as the feature has it, so that it keeps its suppression state.
void ClearSelectedFeature(AutomationObject& document, bool suppressed) {
    AutomationArray arguments = UsePartProperties();
    arguments.emplace_back(suppressed);
    arguments.emplace_back("");
    document.Invoke("SelectedFeatureProperties", arguments);
}

} // namespace

// The progress window of a walk over many items, and its stop flag.
class WalkProgress {
public:
    WalkProgress(ShownProgress& progress, EventPump& events, const bool& stopFlag)
        : progress_(progress), events_(events), stopFlag_(stopFlag) {}

    // Lets the user interface breathe; true when the user wants to stop.
    [[nodiscard]] bool IsStopped() {
        events_.ProcessPendingEvents();
        return stopFlag_;
    }
    void Show(std::int32_t value) {
        value_ = value;
        progress_.Set(value);
        progress_.Refresh();
    }
    void Advance() { Show(value_ + 1); }

private:
    ShownProgress& progress_;
    EventPump& events_;
    const bool& stopFlag_;
    std::int32_t value_ = 0;
};

std::string modSldTools::SWXClearColor() {
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::PartOrAssembly);
        !refusal.empty())
        return refusal;
    const SolidWorksSelection selection(session.Document());
    const std::int32_t count = selection.Count();
    std::string report;
    for (std::int32_t index = 1; index <= count; ++index)
        ClearSelectedObject(session, selection, index, report);
    session.Document().Invoke("EditRebuild", {});
    return report.empty() ? ResultKey::Okay : report;
}

void modSldTools::ClearSelectedObject(const SolidWorksSession& session,
                                      const SolidWorksSelection& selection, std::int32_t index,
                                      std::string& report) {
    const AutomationObjectPtr object = selection.ObjectAt(index);
    if (!object) {
        report += kLineBreak +
                  (ResultKey::NoValidSelectionNoObject + std::to_string(selection.TypeAt(index)));
        return;
    }
    object->Invoke("Select", {true});
    const std::int32_t type = selection.TypeAt(index);
    if (type == SelectionType::Face)
        ClearSelectedFace(session.Document());
    else if (type == SelectionType::Component && session.IsAssembly())
        ClearComponent(session, *object, report);
    else if (type == SelectionType::Component || type == SelectionType::BodyFeature)
        ClearSelectedFeature(session.Document(), object->Get("IsSuppressed").AsBoolean());
    else
        report += kLineBreak + (ResultKey::NoValidSelection + std::to_string(type));
}

void modSldTools::ClearComponent(const SolidWorksSession& session, AutomationObject& component,
                                 std::string& report) {
    if (session.HasRequiredRevision())
        component.Invoke("RemoveMaterialProperty", {});
    else
        report += kLineBreak + ports_.texts.GetInfoText(InfoTextNumber::RevisionTooLow);
}

std::string modSldTools::SWXClearComponentColor() {
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::Assembly); !refusal.empty())
        return refusal;
    const SolidWorksSelection selection(session.Document());
    const std::int32_t count = selection.Count();
    std::string report;
    for (std::int32_t index = 1; index <= count; ++index) {
        if (const AutomationObjectPtr component = selection.ComponentAt(index))
            ClearComponent(session, *component, report);
        else
            report += kLineBreak + (ResultKey::NoValidSelectionNoObject +
                                    std::to_string(selection.TypeAt(index)));
    }
    session.Document().Invoke("EditRebuild", {});
    return report.empty() ? ResultKey::Okay : report;
}

std::string modSldTools::SWXClearColorPart() {
    ports_.stopFlag = false;
    SolidWorksSession session(ports_.service);
    if (std::string refusal = session.TakeDocument(DocumentDemand::Part); !refusal.empty())
        return refusal;
    AutomationObject& document = session.Document();
    const AutomationObjectPtr body = document.Get("Body").AsObject();
    if (!body)
        return ResultKey::NoPartBody;
    document.Invoke("ClearSelection", {});
    const std::int32_t faceCount = body->Get("GetFaceCount").AsInt32();
    const std::int32_t featureCount = document.Get("GetFeatureCount").AsInt32();
    {
        ShownProgress progress(ports_.progress,
                               ports_.texts.GetInfoText(InfoTextNumber::ClearingPart),
                               faceCount + featureCount);
        WalkProgress walk(progress, ports_.events, ports_.stopFlag);
        if (!ClearFeatures(document, walk) || !ClearFaces(document, *body, walk))
            return ResultKey::ProgressStopped;
    }
    document.Invoke("EditRebuild", {});
    return ResultKey::Okay;
}

bool modSldTools::ClearFeatures(AutomationObject& document, WalkProgress& walk) {
    for (AutomationObjectPtr feature = document.Get("FirstFeature").AsObject(); feature;
         feature = feature->Get("GetNextFeature").AsObject()) {
        if (walk.IsStopped())
            return false;
        feature->Invoke("Select", {false});
        const bool suppressed = feature->Get("IsSuppressed").AsBoolean();
        walk.Advance();
        ClearSelectedFeature(document, suppressed);
    }
    return true;
}

bool modSldTools::ClearFaces(AutomationObject& document, AutomationObject& body,
                             WalkProgress& walk) {
    for (AutomationObjectPtr face = body.Get("GetFirstFace").AsObject(); face;
         face = face->Get("GetNextFace").AsObject()) {
        if (walk.IsStopped())
            return false;
        face->Invoke("Select", {false});
        walk.Advance();
        ClearSelectedFace(document);
    }
    return true;
}

namespace {

// The children of a component: objects, bare or inside variants; an empty value is no children.
AutomationArray Children(AutomationObject& root) {
    AutomationValue children = root.Get("GetChildren");
    if (auto* array = std::get_if<AutomationArray>(&children.data))
        return std::move(*array);
    if (!children.AsObject()) // throws for anything else
        return {};
    throw RuntimeError(ErrorNumber::TypeMismatch, "Type mismatch", "GetChildren");
}

} // namespace

std::string modSldTools::SWXClearColorAssembly() {
    ports_.stopFlag = false;
    SolidWorksSession session(ports_.service);
    if (!session.IsAttached())
        return ResultKey::NoSolidWorksFound;
    // The revision comes first, on purpose: also without a document.
    if (!session.HasRequiredRevision())
        return ResultKey::NoRequiredSWAPI;
    if (std::string refusal = session.TakeDocument(DocumentDemand::Assembly); !refusal.empty())
        return refusal;
    AutomationObject& document = session.Document();
    document.Invoke("ClearSelection", {});
    const AutomationObjectPtr root =
        RequiredObject(document, "GetActiveConfiguration")->Get("GetRootComponent").AsObject();
    if (root && !ClearChildren(*root))
        return ResultKey::ProgressStopped;
    document.Invoke("EditRebuild", {});
    return ResultKey::Okay;
}

bool modSldTools::ClearChildren(AutomationObject& root) {
    const AutomationArray children = Children(root);
    // The array's upper bound as it stands: one less than the number of children.
    const std::int32_t upperBound = static_cast<std::int32_t>(children.size()) - 1;
    ShownProgress progress(ports_.progress,
                           ports_.texts.GetInfoText(InfoTextNumber::ClearingAssembly), upperBound);
    WalkProgress walk(progress, ports_.events, ports_.stopFlag);
    for (std::int32_t index = 0; index <= upperBound; ++index) {
        if (walk.IsStopped())
            return false;
        walk.Show(index);
        const AutomationObjectPtr child = children[static_cast<std::size_t>(index)].AsObject();
        if (!child)
            throw RuntimeError(ErrorNumber::ObjectNotSet, "SolidWorks gave no object",
                               "GetChildren");
        child->Invoke("RemoveMaterialProperty", {});
    }
    return true;
}
