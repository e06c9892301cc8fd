#pragma once

#include "platform/controls/Control.h"

class ProgressBar : public Control {
public:
    ProgressBar(Form& form, const ControlPlace& place);

    void SetRange(int minimum, int maximum); // the value becomes the minimum
    void SetValue(int value);                // beyond the maximum: the maximum
};
