#pragma once

#include "platform/controls/Control.h"

#include <functional>

enum class ButtonRole { Ordinary, Default };

class CommandButton : public Control {
public:
    CommandButton(ControlHost& host, const ControlPlace& place,
                  ButtonRole role = ButtonRole::Ordinary);

    // Wide enough for its text, and never below the usual width; pixels.  A text that is longer
    // than the maximum allows (0: any) takes more lines.
    [[nodiscard]] SIZE IdealSize(int maximumWidth = 0) const;

    std::function<void()> onClick;

    void OnCommand(WPARAM wParam) override;
};
