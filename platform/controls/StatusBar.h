#pragma once

#include "platform/controls/Control.h"

// The status bar of a form, with one panel; it places itself.
class StatusBar : public Control {
public:
    StatusBar(ControlHost& host, const ControlPlace& place);

    void SetPanelText(const std::string& text);
    void FollowForm(); // after the form's size or the own visibility changed

protected:
    [[nodiscard]] bool IsTextCut() const override;
};
