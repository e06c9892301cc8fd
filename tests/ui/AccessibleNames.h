#pragma once

#include <string>
#include <vector>
#include <windows.h>

// What a program that reads the screen is told of a control.
struct AccessibleControl {
    int id = 0;       // of the window
    std::string type; // its class
    std::string name; // its own, or the text of the label directly before it
    std::string role; // as the system words it
    std::string state;
};

// All controls of a form, those of its frames too, in their order; labels that only name another
// control and hidden windows that nothing shows are in it as well.  COM must be there.
[[nodiscard]] std::vector<AccessibleControl> AccessibleControlsOf(HWND form);
