#pragma once

#include "platform/controls/Control.h"

class Canvas;

// A part of the window that draws itself.  Its window text is for programs that read the screen.
class PaintedPane : public Control {
public:
    void Repaint() const { InvalidateRect(Handle(), nullptr, FALSE); }

protected:
    PaintedPane(Form& form, const ControlPlace& place);

    virtual void Paint(const Canvas& canvas, const RECT& area) = 0;
    virtual void OnMousePress(POINT /*point*/, bool /*append*/) {}

    MessageResult OnMessage(const WindowMessage& message) override;
};
