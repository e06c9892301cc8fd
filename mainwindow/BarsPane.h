#pragma once

#include "common/ports/MenuMarks.h"

#include <string>

// Menus, toolbar and status bar.  Texts are UTF-8.
class BarsPane : public MenuMarks {
public:
    virtual void SetButtonPressed(const std::string& buttonKey, bool pressed) = 0;
    // What was shown or hidden takes its place with ArrangeBars, once for all.
    virtual void SetButtonVisible(const std::string& buttonKey, bool visible) = 0;
    virtual void SetToolbarVisible(bool visible) = 0;
    virtual void SetStatusBarVisible(bool visible) = 0;
    virtual void ArrangeBars() = 0;
    virtual void SetInfoPanelText(const std::string& text) = 0; // panel "Infotext"
};
