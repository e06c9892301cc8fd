#pragma once

#include "platform/controls/Control.h"
#include "platform/Handles.h"

// Keeps the library with the rich edit control loaded (Msftedit.dll).
class RichEditLibrary {
public:
    RichEditLibrary();

private:
    ModuleHandle module_;
};

// A long text that is only read; always taken as plain text.
class RichEdit : private RichEditLibrary, public Control {
public:
    RichEdit(ControlHost& host, const ControlPlace& place);

    void SetText(const std::string& text) override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
};
