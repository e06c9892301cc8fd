#pragma once

#include "tests/e2e/RemoteList.h"

#include <string>
#include <vector>

// The window of the stand-in for SolidWorks, worked from outside.
class RemoteStandIn {
public:
    explicit RemoteStandIn(RemoteWindow window) : window_(window) {}

    [[nodiscard]] const RemoteWindow& Window() const noexcept { return window_; }

    // With the mouse, on the object in the picture; with Ctrl it is added to the selection.  Throws
    // std::runtime_error when the picture does not show the object.
    void ClickObject(const std::string& name) const;
    void CtrlClickObject(const std::string& name) const;
    [[nodiscard]] std::vector<std::string> SelectedObjects() const;

    void ChooseNextDocument() const; // part, assembly, drawing, none: by keyboard in its box
    [[nodiscard]] std::string ChosenDocument() const;

private:
    [[nodiscard]] RemoteList Objects() const;
    [[nodiscard]] POINT PointOf(const std::string& name) const;

    RemoteWindow window_;
};
