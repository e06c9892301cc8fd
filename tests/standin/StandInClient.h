#pragma once

#include "standin/model/StandInModel.h"

#include <functional>
#include <string>

// A late-bound client of the stand-in: short ways to what the tests need again and again.
class StandInClient {
public:
    explicit StandInClient(StandInModel& model) : StandInClient(model.ApplicationObject()) {}
    explicit StandInClient(AutomationObjectPtr application)
        : application_(std::move(application)) {}

    [[nodiscard]] AutomationObjectPtr Application() const { return application_; }
    [[nodiscard]] AutomationObjectPtr Document() const {
        return application_->Get("ActiveDoc").AsObject();
    }
    [[nodiscard]] AutomationObjectPtr Selection() const {
        return Document()->Get("SelectionManager").AsObject();
    }
    // index: from 0.
    [[nodiscard]] AutomationObjectPtr Face(int index) const {
        return Walk(Document()->Get("Body").AsObject()->Get("GetFirstFace").AsObject(),
                    "GetNextFace", index);
    }
    // Among those that make faces.
    [[nodiscard]] AutomationObjectPtr Feature(int index) const {
        AutomationObjectPtr feature = Document()->Get("FirstFeature").AsObject();
        for (int left = index; feature; feature = feature->Get("GetNextFeature").AsObject())
            if (feature->Get("GetTypeName").AsString() == "Extrusion" && left-- == 0)
                break;
        return feature;
    }
    [[nodiscard]] AutomationObjectPtr Root() const {
        return Document()
            ->Get("GetActiveConfiguration")
            .AsObject()
            ->Get("GetRootComponent")
            .AsObject();
    }
    [[nodiscard]] AutomationObjectPtr Child(std::size_t index) const {
        return ChildOf(Root(), index);
    }
    [[nodiscard]] static AutomationObjectPtr ChildOf(const AutomationObjectPtr& component,
                                                     std::size_t index) {
        return std::get<AutomationArray>(component->Get("GetChildren").data).at(index).AsObject();
    }

private:
    static AutomationObjectPtr Walk(AutomationObjectPtr object, const char* next, int steps) {
        for (int i = 0; i < steps; ++i)
            object = object->Get(next).AsObject();
        return object;
    }

    AutomationObjectPtr application_;
};

// The number of the run-time error that the action raises; 0 when it raises none.
[[nodiscard]] inline int ErrorNumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}
