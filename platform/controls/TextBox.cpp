#include "platform/controls/TextBox.h"

#include <algorithm>
#include <utility>

namespace {

constexpr ControlKind kTextBox{"TextBox", WC_EDITW, "Text"};

constexpr DWORD kTextBoxStyle = WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL;

// Ctrl+A, C, V, X and Z reach the edit control as characters too, but they are commands, not text.
bool IsEditingKey(WPARAM character) {
    return character == 1 || character == 3 || character == 22 || character == 24 ||
           character == 26;
}

} // namespace

TextBox::TextBox(ControlHost& host, const ControlPlace& place, DWORD style)
    : Control(host, kTextBox, place, kTextBoxStyle | style, WS_EX_CLIENTEDGE) {}

void TextBox::SetText(const std::string& text) {
    if (text == Text())
        return;
    DWORD start = 0;
    DWORD end = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), &end);
    const int fromEnd = GetWindowTextLengthW(Handle()) - static_cast<int>(end);
    const bool before = std::exchange(setting_, true);
    Control::SetText(text);
    const int caret = std::max(0, GetWindowTextLengthW(Handle()) - fromEnd);
    Send(EM_SETSEL, static_cast<WPARAM>(caret), static_cast<LPARAM>(caret));
    setting_ = before;
}

void TextBox::SetProperty(const std::string& property, const std::string& text) {
    if (property != kTextBox.textProperty)
        Control::SetProperty(property, text);
    else if (text != Text())
        Control::SetText(text);
}

void TextBox::SelectAll() {
    Send(EM_SETSEL, 0, -1);
}

void TextBox::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == EN_CHANGE && !setting_)
        Raise(onChange, Text());
    else if (HIWORD(wParam) == EN_SETFOCUS)
        Raise(onFocus);
}

// A text that was set while the box was narrower would stay scrolled out of it.
void TextBox::ShowFromItsStart() {
    DWORD start = 0;
    DWORD end = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), &end);
    Send(EM_SETSEL);
    Send(EM_SCROLLCARET);
    Send(EM_SETSEL, start, static_cast<LPARAM>(end));
}

MessageResult TextBox::OnMessage(const WindowMessage& message) {
    if (message.id == WM_SIZE) {
        const LRESULT result = Default(message);
        ShowFromItsStart();
        return result;
    }
    if (message.id == WM_CHAR && mayType && !IsEditingKey(message.wParam) &&
        !mayType(static_cast<char32_t>(message.wParam)))
        return 0;
    // The click that brings the focus leaves the selection that the focus made.
    if (message.id == WM_LBUTTONDOWN && onFocus && GetFocus() != message.window) {
        Focus();
        return 0;
    }
    return {};
}
