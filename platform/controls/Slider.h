#pragma once

#include "platform/controls/Control.h"

#include <functional>

// A slider from 0 to a maximum: arrow keys move by 1, page keys by 10, a notch of the wheel by 3,
// upwards to greater values.
class Slider : public Control {
public:
    Slider(ControlHost& host, const ControlPlace& place, int maximum);

    void SetPosition(int position); // not reported as a move
    [[nodiscard]] int Position() const;
    std::function<void(int position)> onMove; // by mouse or keyboard

    MessageResult OnScroll(unsigned code) override;
    void ApplyScale() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;

private:
    void ReportMove();

    int known_ = 0; // position that was set or reported last
    int wheel_ = 0; // turned since the last whole notch
};
