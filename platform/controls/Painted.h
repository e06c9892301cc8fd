#pragma once

#include "platform/BufferedPaint.h"
#include "platform/Canvas.h"
#include "platform/controls/Control.h"

// What a control that draws itself does with the messages by which its window's class would draw at
// once, and in its own way.  None: the message is no such one.
[[nodiscard]] MessageResult AnswerUnpainted(const WindowMessage& message);

// Has the window painted again.  One that is hidden, alone or with its form, is painted as a whole
// when it is shown.
void RepaintIfShown(HWND window);

// A control, or a kind of one, that draws itself; never the class of its window.
template <typename Base = Control>
class Painted : public Base {
public:
    void Repaint() const { RepaintIfShown(Base::Handle()); }

protected:
    using Base::Base;

    // The whole of the client area, in memory first; the canvas has the form's font.
    virtual void Paint(const Canvas& canvas, const RECT& area) const = 0;

    MessageResult OnMessage(const WindowMessage& message) override {
        if (message.id != WM_PAINT)
            return AnswerUnpainted(message);
        const BufferedPaint paint(message.window);
        Paint(Canvas(paint.Device(), Base::Host().Font()), paint.Area());
        return 0;
    }
};
