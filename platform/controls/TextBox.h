#pragma once

#include "platform/controls/Control.h"

#include <functional>

// One line of text that the user types.
class TextBox : public Control {
public:
    TextBox(ControlHost& host, const ControlPlace& place, DWORD style = 0);

    // Not reported as a change.  The caret keeps its distance from the end of the text.
    void SetText(const std::string& text) override;
    // Reported as if it had been typed, when it is another text.
    void SetProperty(const std::string& property, const std::string& text) override;
    void SelectAll();

    std::function<void(const std::string& text)> onChange;
    std::function<bool(char32_t character)> mayType; // not set: every character
    std::function<void()> onFocus;

    void OnCommand(WPARAM wParam) override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;

private:
    void ShowFromItsStart();

    bool setting_ = false;
};
