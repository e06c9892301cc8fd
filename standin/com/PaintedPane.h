#pragma once

#include "platform/controls/Painted.h"

// A part of the window that draws itself.  Its window text is for programs that read the screen.
class PaintedPane : public Painted<> {
protected:
    PaintedPane(ControlHost& host, const ControlPlace& place);

    virtual void PaintInside(const Canvas& canvas, const RECT& area) const = 0;
    virtual void OnMousePress(POINT /*point*/, bool /*append*/) {}

    MessageResult OnMessage(const WindowMessage& message) override;
    void Paint(const Canvas& canvas, const RECT& area) const override;
};
