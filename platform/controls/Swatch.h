#pragma once

#include "common/ColorNumber.h"
#include "platform/controls/Painted.h"

#include <functional>

// A label that shows a color, and its text in another one.
class Swatch : public Painted<> {
public:
    Swatch(ControlHost& host, const ControlPlace& place);

    void SetColors(ColorNumber background, ColorNumber text);

    std::function<void()> onDoubleClick;

    void OnCommand(WPARAM wParam) override;

protected:
    [[nodiscard]] bool IsTextCut() const override;
    void Paint(const Canvas& canvas, const RECT& area) const override;

private:
    ColorNumber background_ = 0xFFFFFF;
    ColorNumber text_ = 0;
};

// A plain bar of the shadow's color.
class SolidBar : public Control {
public:
    SolidBar(ControlHost& host, const ControlPlace& place);

    MessageResult OnColor(HDC device) override;
};
