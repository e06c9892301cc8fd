#include "common/InfoTextNumber.h"
#include "common/Text.h"
#include "solidworks/ResultKey.h"
#include "solidworks/SelectedProperties.h"
#include "solidworks/SolidWorksSession.h"
#include "solidworks/modSldTools.h"

// Taking colors off the selection, so that objects show the color of their parent again.

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
        SelectedProperties::ClearFace(session.Document());
    else if (type == SelectionType::Component && session.IsAssembly())
        ClearComponent(session, *object, report);
    else if (type == SelectionType::Component || type == SelectionType::BodyFeature)
        SelectedProperties::ClearFeature(session.Document(),
                                         object->Get("IsSuppressed").AsBoolean());
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
