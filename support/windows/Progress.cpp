#include "support/windows/Progress.h"

#include "support/settings/modWindowsHandling.h"

void Progress::ProgressLoading() {
    language_.SetAllControlText(window_.Get());
    SetFormOnTop(window_.Get(), settings_.alwaysOnTop);
}

void Progress::StopClicked() {
    stopFlag_ = true;
}
