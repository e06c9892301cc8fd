#pragma once

#include "platform/Handles.h"

#include <map>
#include <string>
#include <vector>

// One key that runs a command.
struct ShortcutDesign {
    int command;
    bool ctrl;
    bool shift;
    WORD key;                  // virtual key
    bool leavesTextEntryAlone; // not taken while text is typed
    int onlyInControl; // taken only while the control with this number has the focus; 0: any
};

// What keys are called, by their virtual keys.
using KeyNames = std::map<WORD, std::string>;

// "Ctrl+S".  Letters, digits and function keys need no name in names.
[[nodiscard]] std::string ShortcutName(const ShortcutDesign& design, const KeyNames& names);

// The keys that run commands, each where it may be taken; a label edit is typed text.
class Shortcuts {
public:
    explicit Shortcuts(const std::vector<ShortcutDesign>& designs);

    // True: the key was taken and its WM_COMMAND has been sent to the form.
    bool Translate(HWND form, MSG& message) const;

private:
    AcceleratorHandle always_;
    AcceleratorHandle outsideText_;
    std::map<int, AcceleratorHandle> inControl_; // by the control's number
};
