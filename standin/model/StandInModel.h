#pragma once

#include "standin/model/SolidWorksApplication.h"
#include "standin/model/CallGate.h"
#include "standin/model/SampleDocuments.h"

// The whole stand-in without a window: documents, the application object and the gate before it.
class StandInModel {
public:
    explicit StandInModel(const Scenario& scenario = {});
    // As ApplyScenario: StandInModel("assembly,old-revision").
    explicit StandInModel(const std::string& scenario);

    // What a client that attaches gets.
    [[nodiscard]] StandInObjectPtr ApplicationObject() { return gate_->Wrap(application_); }

    [[nodiscard]] CallGate& Gate() noexcept { return *gate_; }
    [[nodiscard]] CallLog& Log() noexcept { return gate_->Log(); }

    [[nodiscard]] PartDocument& Part() noexcept { return *documents_.part; }
    [[nodiscard]] AssemblyDocument& Assembly() noexcept { return *documents_.assembly; }
    [[nodiscard]] const std::string& Revision() const noexcept { return session_->revision; }
    void SetRevision(const std::string& revision);
    void SetVisible(bool visible) noexcept { session_->isVisible = visible; }

    // Null when there is none.
    [[nodiscard]] DocumentPtr ActiveDocument() const { return session_->activeDocument.lock(); }
    // Makes the document of this type active; none closes nothing but leaves none active.
    void Activate(std::optional<DocumentType> type);

    [[nodiscard]] ModelEvents& Events() noexcept { return session_->events; }

private:
    SessionPtr session_;
    SampleDocuments documents_;
    DocumentPtr drawing_;
    std::shared_ptr<SolidWorksApplication> application_;
    std::shared_ptr<CallGate> gate_;
};
