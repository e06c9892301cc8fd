#include "platform/controls/RichEdit.h"

#include "platform/DpiScale.h"

#include <richedit.h>

namespace {

constexpr ControlKind kRichEdit{"RichTextBox", MSFTEDIT_CLASS, "Text"};

constexpr DWORD kRichEditStyle =
    WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;

constexpr LPARAM kLargestText = 0x7FFFFFFE;

} // namespace

RichEditLibrary::RichEditLibrary()
    : module_(LoadLibraryExW(L"Msftedit.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}

RichEdit::RichEdit(ControlHost& host, const ControlPlace& place)
    : Control(host, kRichEdit, place, kRichEditStyle, WS_EX_CLIENTEDGE) {
    Send(EM_SETTEXTMODE, TM_PLAINTEXT); // a text that looks like marked-up text stays as it is
    Send(EM_EXLIMITTEXT, 0, kLargestText);
    Send(EM_SETBKGNDCOLOR, TRUE); // the system's, also when it changes
    const int margin = Scale().FromDesign(6);
    Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
}

// Left to itself it would keep Tab, Enter and Escape, and the keyboard could not leave it.
MessageResult RichEdit::OnMessage(const WindowMessage& message) {
    if (message.id == WM_GETDLGCODE)
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    return {};
}

void RichEdit::SetText(const std::string& text) {
    Control::SetText(text);
    Send(EM_SETSEL, 0, LPARAM{0});
    Send(EM_SCROLLCARET);
}
