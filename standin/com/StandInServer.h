#pragma once

#include "standin/com/ClassRegistration.h"
#include "standin/com/RunningRegistration.h"
#include "standin/com/ServedObjects.h"
#include "standin/model/StandInModel.h"

// Makes the model's application object the running SldWorks.Application while this object lives.
class StandInServer {
public:
    explicit StandInServer(StandInModel& model);

    [[nodiscard]] const ServedObjects& Objects() const noexcept { return *objects_; }

private:
    std::shared_ptr<ServedObjects> objects_;
    ClassRegistration class_;
    RunningRegistration running_;
};
