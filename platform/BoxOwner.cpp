#include "platform/BoxOwner.h"

namespace {

HWND ActivePopupOf(HWND mainWindow) {
    HWND popup = mainWindow != nullptr ? GetLastActivePopup(mainWindow) : nullptr;
    // One that was hidden meanwhile still counts as the last active.
    return popup != nullptr && IsWindowVisible(popup) != FALSE ? popup : mainWindow;
}

} // namespace

BoxOwner::BoxOwner(HWND mainWindow)
    : mainWindow_(mainWindow), handle_(ActivePopupOf(mainWindow)),
      isDisabledHere_(handle_ != mainWindow_ && EnableWindow(mainWindow_, FALSE) == FALSE) {}

BoxOwner::~BoxOwner() {
    if (isDisabledHere_)
        EnableWindow(mainWindow_, TRUE);
}
