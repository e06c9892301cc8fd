#pragma once

#include "common/ColorNumber.h"
#include "platform/controls/Control.h"

#include <functional>

// A label that shows a colour, and its text in another one.
class Swatch : public Control {
public:
    Swatch(Form& form, const ControlPlace& place);

    void SetColors(ColorNumber background, ColorNumber text);
    void SetText(const std::string& text) override;

    std::function<void()> onDoubleClick;

    void OnCommand(WPARAM wParam) override;

protected:
    [[nodiscard]] bool IsTextCut() const override;
    MessageResult OnMessage(const WindowMessage& message) override;

private:
    void Paint() const;

    ColorNumber background_ = 0xFFFFFF;
    ColorNumber text_ = 0;
};

// A plain bar of the shadow's colour.
class SolidBar : public Control {
public:
    SolidBar(Form& form, const ControlPlace& place);

    MessageResult OnColor(HDC device) override;
};
