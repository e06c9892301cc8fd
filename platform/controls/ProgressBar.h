#pragma once

#include "platform/controls/Control.h"

class ProgressBar : public Control {
public:
    ProgressBar(ControlHost& host, const ControlPlace& place);

    void SetRange(int minimum, int maximum); // the value becomes the minimum
    // Beyond the maximum: the maximum.  Values that look alike cost nothing.
    void SetValue(int value);

private:
    [[nodiscard]] int StepOf(int value) const noexcept;

    int minimum_ = 0;
    int maximum_ = 100;
    int step_ = 0; // that is shown
};
