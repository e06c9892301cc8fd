#pragma once

#include "common/ColorNumber.h"
#include "platform/controls/Painted.h"

#include <functional>

// A label that shows a color, and its text in another one.
class Swatch : public Painted<> {
public:
    // Paints the whole of the area, its border included.
    using PicturePainter = std::function<void(const Canvas& canvas, const RECT& area)>;

    Swatch(ControlHost& host, const ControlPlace& place);

    void SetColors(ColorNumber background, ColorNumber text);

    // A picture behind the text; none: the color within a border.
    void PaintPicture(PicturePainter painter);
    [[nodiscard]] bool HasPicture() const noexcept { return painter_ != nullptr; }

    std::function<void()> onDoubleClick;

    void OnCommand(WPARAM wParam) override;

protected:
    [[nodiscard]] bool IsTextCut() const override;
    void Paint(const Canvas& canvas, const RECT& area) const override;

private:
    void PaintColor(const Canvas& canvas, const RECT& area) const;

    PicturePainter painter_;
    ColorNumber background_ = 0xFFFFFF;
    ColorNumber text_ = 0;
};

// A plain bar of the shadow's color.
class SolidBar : public Control {
public:
    SolidBar(ControlHost& host, const ControlPlace& place);

    MessageResult OnColor(HDC device) override;
};
