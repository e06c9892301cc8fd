#pragma once

#include "platform/controls/Painted.h"

#include <functional>

// The strip between two panes that takes the mouse.
class Splitter : public Painted<> {
public:
    Splitter(ControlHost& host, const ControlPlace& place);

    std::function<void()> onPress;
    std::function<void(int x)> onDrag; // pixels from the own left edge
    std::function<void()> onRelease;   // also when the mouse was taken away

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void Paint(const Canvas& canvas, const RECT& area) const override;

private:
    bool pressed_ = false;
};
