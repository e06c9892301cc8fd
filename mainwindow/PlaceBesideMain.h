#pragma once

#include "common/ports/FormWindow.h"
#include "support/settings/CFormPos.h"
#include "support/settings/modRegistry.h"

// Where a window stands that stays open beside the main one: where it was when it was closed, also
// at the end of the program; the first time to the right of the main window.
class PlaceBesideMain {
public:
    // Both must live as long as this.
    PlaceBesideMain(const modRegistry& registry, const FormWindow& mainWindow);

    // The window is about to be shown; one that is open keeps its place.
    void Opening(FormWindow& window);
    // Only while it is open.
    void Closing();
    // The place of a window that is still open is kept.
    void ProgramEnding() const;

    [[nodiscard]] bool IsOpen() const noexcept { return isOpen_; }

private:
    void MoveBesideMain(FormWindow& window) const;

    const FormWindow& mainWindow_;
    CFormPos position_;
    bool isOpen_ = false;
};
