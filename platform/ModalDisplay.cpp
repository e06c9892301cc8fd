#include "platform/ModalDisplay.h"

#include "platform/MessageLoop.h"

ModalDisplay::ModalDisplay(HWND window, int showCommand)
    : window_(window), owner_(GetWindow(window, GW_OWNER)),
      ownerWasEnabled_(owner_ != nullptr && EnableWindow(owner_, FALSE) == FALSE) {
    ShowWindow(window_, showCommand);
    SetForegroundWindow(window_);
}

// The owner is enabled before the window goes: else another program's window would come to the
// front.
ModalDisplay::~ModalDisplay() {
    if (ownerWasEnabled_) {
        EnableWindow(owner_, TRUE);
        SetActiveWindow(owner_);
    }
    ShowWindow(window_, SW_HIDE);
}

void ModalDisplay::Run(const std::function<bool()>& isDone) {
    RunModalLoop(isDone);
}
