#pragma once

#include "common/ports/MenuMarks.h"

#include <string>

// Menus, toolbar and status bar.  Texts are UTF-8.
class BarsPane : public MenuMarks {
public:
    // The entry's caption; a text that is shown in its stead (empty: none), and whether it is grey.
    [[nodiscard]] virtual std::string MenuCaption(int command) const = 0;
    virtual void SetMenuText(int command, const std::string& text) = 0;
    virtual void SetMenuEnabled(int command, bool enabled) = 0;
    virtual void SetButtonPressed(const std::string& buttonKey, bool pressed) = 0;
    // ArrangeBars is called once after the next three; until then nothing moves.
    virtual void SetButtonVisible(const std::string& buttonKey, bool visible) = 0;
    virtual void SetToolbarVisible(bool visible) = 0;
    virtual void SetStatusBarVisible(bool visible) = 0;
    virtual void ArrangeBars() = 0;
    virtual void SetInfoPanelText(const std::string& text) = 0; // panel "Infotext"
};
