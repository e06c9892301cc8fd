#include "mainwindow/PlaceBesideMain.h"

#include "common/ProgramNames.h"

#include <algorithm>
#include <utility>

PlaceBesideMain::PlaceBesideMain(const modRegistry& registry, const FormWindow& mainWindow)
    : mainWindow_(mainWindow), position_(registry) {
    position_.SetRootKey(RegistryRoot::CurrentUser);
    position_.SetRegistryPath(ProgramNames::RegistryPath);
    position_.SetSubKey(ProgramNames::FormPositionsKey);
}

void PlaceBesideMain::Opening(FormWindow& window) {
    if (std::exchange(isOpen_, true))
        return;
    position_.SetForm(window);
    if (!position_.RestoreForm(true))
        MoveBesideMain(window);
}

// As far as the screen has room.
void PlaceBesideMain::MoveBesideMain(FormWindow& window) const {
    const TwipsRect main = mainWindow_.Bounds();
    TwipsRect bounds = window.Bounds();
    const float farthest = window.ScreenSize().width - bounds.width;
    bounds.left = std::max(std::min(main.left + main.width, farthest), 0.0F);
    bounds.top = std::max(main.top, 0.0F);
    window.Move(bounds);
}

void PlaceBesideMain::Closing() {
    position_.SaveForm();
    isOpen_ = false;
}

void PlaceBesideMain::ProgramEnding() const {
    if (isOpen_)
        position_.SaveForm();
}
