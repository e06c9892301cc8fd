#pragma once

#include <functional>
#include <windows.h>

// Shows a window modally over its owner, for as long as this object lives.
class ModalDisplay {
public:
    explicit ModalDisplay(HWND window, int showCommand = SW_SHOW);
    ModalDisplay(const ModalDisplay&) = delete;
    ModalDisplay& operator=(const ModalDisplay&) = delete;
    ~ModalDisplay(); // the owner takes the focus back

    // Ends when the condition is met, or with the program.
    static void Run(const std::function<bool()>& isDone);

private:
    HWND window_;
    HWND owner_;
    bool ownerWasEnabled_;
};
