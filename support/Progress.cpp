#include "support/Progress.h"

#include "support/modWindowsHandling.h"

void Progress::ProgressLoading() {
    language_.SetAllControlText(form_);
    SetFormOnTop(window_, settings_.alwaysOnTop);
}

void Progress::StopClicked() {
    stopFlag_ = true;
}
