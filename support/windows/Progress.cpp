#include "support/windows/Progress.h"

#include "support/settings/modWindowsHandling.h"

void Progress::ProgressLoading() {
    language_.SetAllControlText(form_);
    SetFormOnTop(window_, settings_.alwaysOnTop);
}

void Progress::StopClicked() {
    stopFlag_ = true;
}
