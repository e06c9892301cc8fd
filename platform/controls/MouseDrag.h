#pragma once

#include "platform/WindowMessage.h"

#include <functional>

// Follows the mouse for a control from the start of a drag until the left button is released, or
// until the drag is given up: by the right button, or because the mouse was taken away.  Points are
// pixels of the screen.
class MouseDrag {
public:
    explicit MouseDrag(HWND window) noexcept : window_(window) {}

    void Begin(POINT at);
    void End();    // without a report
    void Cancel(); // reported, if it is under way
    [[nodiscard]] bool IsUnderWay() const noexcept { return underWay_; }
    [[nodiscard]] POINT Pointer() const noexcept { return pointer_; }

    std::function<void()> onMove;
    std::function<void()> onDrop;
    std::function<void()> onCancel;

    // For the messages of the control's window; a drag that is under way takes those of the mouse.
    MessageResult OnMessage(const WindowMessage& message);

private:
    void Follow(const WindowMessage& message) noexcept;

    HWND window_;
    bool underWay_ = false;
    POINT pointer_{};
};
