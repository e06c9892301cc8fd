#include "platform/controls/ComboBox.h"

#include "common/RuntimeError.h"
#include "platform/Utf16.h"

#include <commctrl.h>

namespace {

constexpr ControlKind kComboBox{"ComboBox", WC_COMBOBOXW, ""};

} // namespace

ComboBox::ComboBox(ControlHost& host, const ControlPlace& place)
    : Control(host, kComboBox, place, WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST) {}

std::int32_t ComboBox::Count() const {
    return static_cast<std::int32_t>(Send(CB_GETCOUNT));
}

std::string ComboBox::Entry(std::int32_t index) const {
    const LRESULT length = Send(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (index < 0 || length == CB_ERR)
        return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    Send(CB_GETLBTEXT, static_cast<WPARAM>(index), text.data());
    text.resize(static_cast<std::size_t>(length));
    return ToUtf8(text);
}

void ComboBox::Clear() {
    Send(CB_RESETCONTENT);
}

void ComboBox::Add(const std::string& text) {
    Send(CB_ADDSTRING, 0, ToUtf16(text).c_str());
}

std::int32_t ComboBox::ListIndex() const {
    return static_cast<std::int32_t>(Send(CB_GETCURSEL));
}

void ComboBox::SetListIndex(std::int32_t index) {
    if (index < -1 || index >= Count())
        throw RuntimeError(ErrorNumber::InvalidPropertyValue, ErrorTexts::NoSuchListEntry,
                           {Name(), std::to_string(index)});
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
}

void ComboBox::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == CBN_SELCHANGE)
        Raise(onChoose, ListIndex());
}
