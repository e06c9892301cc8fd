#pragma once

#include "common/ProgramNames.h"
#include "standin/model/StandInModel.h"

// Gets the stand-in's application object in process, as the platform's service gets a running one.
class StandInService final : public AutomationService {
public:
    explicit StandInService(StandInModel& model) : model_(model) {}

    // Not running: attaching fails, as it does when the stand-in was told to die.
    void SetRunning(bool running) noexcept { running_ = running; }

    [[nodiscard]] AutomationObjectPtr GetRunningObject(const std::string& className) override {
        if (!running_ || model_.Gate().IsDead() || className != ProgramNames::SolidWorksClass)
            return nullptr;
        return model_.ApplicationObject();
    }

private:
    StandInModel& model_;
    bool running_ = true;
};
