#pragma once

#include "platform/controls/Control.h"

#include <functional>

enum class ButtonRole { Ordinary, Default };

class CommandButton : public Control {
public:
    CommandButton(Form& form, const ControlPlace& place, ButtonRole role = ButtonRole::Ordinary);

    // Wide enough for its text, and never below the usual width; pixels.
    [[nodiscard]] SIZE IdealSize() const;

    std::function<void()> onClick;

    void OnCommand(WPARAM wParam) override;
};
