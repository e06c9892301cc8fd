#pragma once

#include "platform/controls/Control.h"

#include <functional>

// A slider from 0 to a maximum: arrow keys move by 1, page keys by 10.
class Slider : public Control {
public:
    Slider(Form& form, const ControlPlace& place, int maximum);

    void SetPosition(int position); // not reported as a move
    [[nodiscard]] int Position() const;
    std::function<void(int position)> onMove; // by mouse or keyboard

    MessageResult OnScroll(unsigned code) override;
    void ApplyScale() override;
};
