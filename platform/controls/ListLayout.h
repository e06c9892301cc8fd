#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/DpiScale.h"

#include <vector>

// A form that is a text above a list above a row of buttons.
struct ListLayout {
    Label& text;
    ListView& list;
    std::vector<CommandButton*> buttons; // from the left; the last one stands on the right

    // The list gets what text and buttons leave.
    void Place(const RECT& area, const DpiScale& scale) const;

private:
    void PlaceButtons(const RECT& area, int top, const DpiScale& scale) const;
};
