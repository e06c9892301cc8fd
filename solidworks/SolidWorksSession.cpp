#include "solidworks/SolidWorksSession.h"

#include "common/Numbers.h"
#include "common/ProgramNames.h"
#include "common/RuntimeError.h"
#include "solidworks/ResultKey.h"

namespace {

std::string RefusalOf(DocumentDemand demand, std::int32_t type) {
    const bool isPart = type == DocumentType::Part;
    const bool isAssembly = type == DocumentType::Assembly;
    if (demand == DocumentDemand::PartOrAssembly && !isPart && !isAssembly)
        return ResultKey::NoPartOrAssembly;
    if (demand == DocumentDemand::Assembly && !isAssembly)
        return ResultKey::NoAssembly;
    if (demand == DocumentDemand::Part && !isPart)
        return ResultKey::NoPart;
    return {};
}

} // namespace

SolidWorksSession::SolidWorksSession(AutomationService& service)
    : application_(service.GetRunningObject(ProgramNames::SolidWorksClass)) {}

std::string SolidWorksSession::TakeDocument(DocumentDemand demand) {
    if (!IsAttached())
        return ResultKey::NoSolidWorksFound;
    document_ = application_->Get("ActiveDoc").AsObject();
    if (!document_)
        return ResultKey::NoActiveDocument;
    if (demand == DocumentDemand::Any)
        return {};
    documentType_ = document_->Get("GetType").AsInt32();
    return RefusalOf(demand, documentType_);
}

bool SolidWorksSession::HasRequiredRevision() const {
    constexpr double requiredRevision = 9.0;
    return LeadingNumber(application_->Get("RevisionNumber").AsString()) >= requiredRevision;
}

SolidWorksSelection::SolidWorksSelection(AutomationObject& document)
    : manager_(RequiredObject(document.Get("SelectionManager"))) {}

std::int32_t SolidWorksSelection::Count() const {
    return manager_->Get("GetSelectedObjectCount").AsInt32();
}

AutomationObjectPtr SolidWorksSelection::ObjectAt(std::int32_t index) const {
    return manager_->Get("GetSelectedObject3", {index}).AsObject();
}

std::int32_t SolidWorksSelection::TypeAt(std::int32_t index) const {
    return manager_->Get("GetSelectedObjectType2", {index}).AsInt32();
}

AutomationObjectPtr SolidWorksSelection::ComponentAt(std::int32_t index) const {
    return manager_->Get("GetSelectedObjectsComponent", {index}).AsObject();
}

AutomationObjectPtr RequiredObject(const AutomationAnswer& answer) {
    AutomationObjectPtr object = answer.AsObject();
    if (!object)
        throw RuntimeError(ErrorNumber::ObjectNotSet, ErrorTexts::NoObject, {}, answer.Member());
    return object;
}
