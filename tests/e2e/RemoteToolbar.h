#pragma once

#include "tests/e2e/RemoteWindow.h"

// A toolbar of another process.
class RemoteToolbar {
public:
    explicit RemoteToolbar(RemoteWindow window) : window_(window) {}

    // With the mouse on the left part of the button, which is not the arrow of its menu; throws
    // std::runtime_error when there is no such button on the screen.
    void Click(int command) const;
    void ClickArrow(int command) const; // of the button's menu

    [[nodiscard]] bool IsShown(int command) const;
    [[nodiscard]] bool IsPressed(int command) const;

private:
    [[nodiscard]] RECT BoundsOf(int command) const;

    RemoteWindow window_;
};
