#include "solidworks/WalkProgress.h"

WalkProgress::WalkProgress(const modSldTools::Ports& ports, std::int32_t labelText,
                           std::int32_t maximum)
    : events_(ports.events), stopFlag_(ports.stopFlag),
      progress_(ports.progress, ports.texts.GetInfoText(labelText), maximum),
      calls_(ports.retry, [this] { return IsStopped(); }) {}

bool WalkProgress::IsStopped() {
    events_.ProcessPendingEvents();
    return stopFlag_;
}

void WalkProgress::BeginItem() {
    if (IsStopped())
        throw OperationStopped();
}

void WalkProgress::Show(std::int32_t value) {
    value_ = value;
    progress_.Set(value);
    progress_.Refresh();
}
