#pragma once

#include "platform/controls/Control.h"

#include <functional>

// A box that is checked or not.
class CheckBox : public Control {
public:
    CheckBox(ControlHost& host, const ControlPlace& place);

    [[nodiscard]] bool IsChecked() const;
    [[nodiscard]] SIZE IdealSize() const; // pixels

    std::function<void(bool isChecked)> onChange; // by the user

    void OnCommand(WPARAM wParam) override;
};
