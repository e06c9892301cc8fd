#pragma once

#include "platform/BufferedPaint.h"
#include "platform/controls/Control.h"

// What a control that draws itself does with the messages by which its window's class would draw at
// once, and in its own way.  None: the message is no such one.
[[nodiscard]] MessageResult AnswerUnpainted(const WindowMessage& message);

// A control, or a kind of one, that draws itself; never the class of its window.
template <typename Base = Control>
class Painted : public Base {
public:
    void Repaint() const { InvalidateRect(Base::Handle(), nullptr, FALSE); }

protected:
    using Base::Base;

    // The whole of the client area, in memory first.
    virtual void Paint(HDC device, const RECT& area) const = 0;

    MessageResult OnMessage(const WindowMessage& message) override {
        if (message.id != WM_PAINT)
            return AnswerUnpainted(message);
        const BufferedPaint paint(message.window);
        Paint(paint.Device(), paint.Area());
        return 0;
    }
};
