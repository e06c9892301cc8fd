#pragma once

#include <windows.h>

// The window that a message box or dialog belongs to while it is open: the one that the user looks
// at.  The system disables that window alone; when it is another than the program's main window,
// such as a modeless viewer over it, the main window is disabled here, so that no command runs in
// the middle of the one that asks.
class BoxOwner {
public:
    explicit BoxOwner(HWND mainWindow); // null: the box belongs to no window
    BoxOwner(const BoxOwner&) = delete;
    BoxOwner& operator=(const BoxOwner&) = delete;
    ~BoxOwner();

    [[nodiscard]] HWND Handle() const noexcept { return handle_; }

private:
    HWND mainWindow_;
    HWND handle_;
    bool isDisabledHere_;
};
