#include "common/InfoTextNumber.h"
#include "common/RuntimeError.h"
#include "solidworks/ResultKey.h"
#include "solidworks/SelectedProperties.h"
#include "solidworks/SolidWorksSession.h"
#include "solidworks/WalkProgress.h"
#include "solidworks/modSldTools.h"

#include <algorithm>
#include <limits>

// Taking colors off a whole part or assembly, so that objects show the color of their parent
// again.

namespace {

constexpr const char* kChildren = "GetChildren";

// Counts of another program may be anything.
std::int32_t BoundedSum(std::int32_t left, std::int32_t right) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t sum = std::int64_t{left} + right;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(sum, Limits::min(), Limits::max()));
}

void ClearFeatures(AutomationObject& document, WalkProgress& walk) {
    for (AutomationObjectPtr feature = document.Get("FirstFeature").AsObject(); feature;
         feature = feature->Get("GetNextFeature").AsObject()) {
        walk.BeginItem();
        feature->Invoke("Select", {false});
        const bool suppressed = feature->Get("IsSuppressed").AsBoolean();
        walk.Advance();
        SelectedProperties::ClearFeature(document, suppressed);
    }
}

void ClearFaces(AutomationObject& document, AutomationObject& body, WalkProgress& walk) {
    for (AutomationObjectPtr face = body.Get("GetFirstFace").AsObject(); face;
         face = face->Get("GetNextFace").AsObject()) {
        walk.BeginItem();
        face->Invoke("Select", {false});
        walk.Advance();
        SelectedProperties::ClearFace(document);
    }
}

// The children of a component: objects, bare or inside variants; an empty value is no children.
AutomationArray Children(AutomationObject& component) {
    AutomationAnswer children = component.Get(kChildren);
    if (auto* array = std::get_if<AutomationArray>(&children.data))
        return std::move(*array);
    if (!children.AsObject()) // throws for anything else
        return {};
    throw RuntimeError(ErrorNumber::TypeMismatch, ErrorTexts::WrongKindOfValue, {}, kChildren);
}

} // namespace

bool modSldTools::Walk(std::int32_t labelText, std::int32_t maximum,
                       const std::function<void(WalkProgress&)>& items) {
    WalkProgress walk(ports_, labelText, maximum);
    try {
        items(walk);
        return true;
    } catch (const OperationStopped&) {
        return false;
    }
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
    const std::int32_t items = BoundedSum(faceCount, featureCount);
    if (!Walk(InfoTextNumber::ClearingPart, items, [&](WalkProgress& walk) {
            ClearFeatures(document, walk);
            ClearFaces(document, *body, walk);
        }))
        return ResultKey::ProgressStopped;
    document.Invoke("EditRebuild", {});
    return ResultKey::Okay;
}

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
        RequiredObject(document.Get("GetActiveConfiguration"))->Get("GetRootComponent").AsObject();
    if (root && !ClearChildren(*root))
        return ResultKey::ProgressStopped;
    document.Invoke("EditRebuild", {});
    return ResultKey::Okay;
}

bool modSldTools::ClearChildren(AutomationObject& root) {
    const AutomationArray children = Children(root);
    // The array's upper bound as it stands: one less than the number of children.
    const std::int32_t upperBound = static_cast<std::int32_t>(children.size()) - 1;
    return Walk(InfoTextNumber::ClearingAssembly, upperBound, [&](WalkProgress& walk) {
        for (std::int32_t index = 0; index <= upperBound; ++index) {
            walk.BeginItem();
            walk.Show(index);
            RequiredObject({children[static_cast<std::size_t>(index)], kChildren})
                ->Invoke("RemoveMaterialProperty", {});
        }
    });
}
