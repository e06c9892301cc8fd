#pragma once

#include "platform/controls/Control.h"

// A frame with a caption that other controls stand in; their notifications go on to the form.
class Frame : public Control {
public:
    Frame(ControlHost& host, const ControlPlace& place);

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
};
