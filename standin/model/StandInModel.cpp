#include "standin/model/StandInModel.h"

#include "standin/model/DrawingDocument.h"

namespace {

Scenario ScenarioOf(const std::string& text) {
    Scenario scenario;
    ApplyScenario(text, scenario);
    return scenario;
}

} // namespace

StandInModel::StandInModel(const Scenario& scenario)
    : session_(std::make_shared<Session>()), documents_(MakeSampleDocuments(session_, scenario)),
      drawing_(DrawingDocument::Create(session_, "Housing.SLDDRW")),
      application_(std::make_shared<SolidWorksApplication>(session_)), gate_(CallGate::Create()) {
    session_->revision = scenario.revision;
    Activate(scenario.active);
}

StandInModel::StandInModel(const std::string& scenario) : StandInModel(ScenarioOf(scenario)) {}

void StandInModel::Activate(std::optional<DocumentType> type) {
    session_->activeDocument.reset();
    if (type == DocumentType::Part)
        session_->activeDocument = documents_.part;
    else if (type == DocumentType::Assembly)
        session_->activeDocument = documents_.assembly;
    else if (type == DocumentType::Drawing)
        session_->activeDocument = drawing_;
    session_->events.Changed();
}

void StandInModel::SetRevision(const std::string& revision) {
    session_->revision = revision;
    session_->events.Changed();
}
