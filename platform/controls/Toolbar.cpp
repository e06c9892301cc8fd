#include "platform/controls/Toolbar.h"

#include "common/RuntimeError.h"
#include "platform/controls/NoSuchMember.h"
#include "platform/DpiScale.h"
#include "platform/Utf16.h"

#include <algorithm>

namespace {

constexpr ControlKind kToolbar{"Toolbar", TOOLBARCLASSNAMEW, ""};

constexpr DWORD kToolbarStyle = WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS |
                                TBSTYLE_WRAPABLE | CCS_TOP | CCS_NODIVIDER;

constexpr int kIconSize = 16;

BYTE StyleOf(ToolbarButtonStyle style) {
    switch (style) {
    case ToolbarButtonStyle::Check:
        return BTNS_CHECK;
    case ToolbarButtonStyle::ButtonGroup:
        return BTNS_CHECKGROUP;
    case ToolbarButtonStyle::Separator:
    case ToolbarButtonStyle::Placeholder:
        return BTNS_SEP;
    case ToolbarButtonStyle::DropDown:
        return BTNS_DROPDOWN;
    default:
        return BTNS_BUTTON;
    }
}

} // namespace

Toolbar::Toolbar(ControlHost& host, const ControlPlace& place, IconList& images,
                 const std::vector<ToolbarButtonDesign>& buttons)
    : Control(host, kToolbar, place, kToolbarStyle), images_(images) {
    for (const ToolbarButtonDesign& design : buttons)
        buttons_.push_back({design, {}, {}});
    Send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    // Mixed buttons: a text without a visible caption is what assistive tools announce.
    Send(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_MIXEDBUTTONS);
    AddButtons();
    Toolbar::ApplyScale();
}

// All at once: a toolbar measures and places all of its buttons after each change.
void Toolbar::AddButtons() {
    std::vector<TBBUTTON> added;
    std::vector<std::wstring> texts;
    texts.reserve(buttons_.size()); // the texts stay where they are
    for (const Button& button : buttons_) {
        TBBUTTON& data = added.emplace_back();
        data.idCommand = button.design.command;
        data.fsState = TBSTATE_ENABLED;
        data.fsStyle = StyleOf(button.design.style);
        data.iString = -1;
        if (data.fsStyle == BTNS_SEP)
            continue; // with the usual width
        data.iBitmap = images_.IndexOf(button.design.icon);
        data.fsStyle |= BTNS_AUTOSIZE;
        data.iString =
            reinterpret_cast<INT_PTR>(texts.emplace_back(ToUtf16(button.design.toolTip)).c_str());
    }
    Send(TB_ADDBUTTONSW, added.size(), added.data());
}

void Toolbar::ShowTexts(const Button& button) {
    if (StyleOf(button.design.style) == BTNS_SEP)
        return;
    const bool captioned = !button.caption.empty();
    std::wstring text = ToUtf16(captioned ? button.caption : button.design.toolTip);
    TBBUTTONINFOW info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT | TBIF_STYLE;
    info.pszText = text.data();
    info.fsStyle = static_cast<BYTE>(StyleOf(button.design.style) | BTNS_AUTOSIZE |
                                     (captioned ? BTNS_SHOWTEXT : 0));
    Send(TB_SETBUTTONINFOW, static_cast<WPARAM>(button.design.command), &info);
}

void Toolbar::SetPressed(const std::string& key, bool pressed) {
    Send(TB_CHECKBUTTON, static_cast<WPARAM>(CommandOf(key)), MAKELPARAM(pressed, 0));
}

void Toolbar::SetVisible(const std::string& key, bool visible) {
    Send(TB_HIDEBUTTON, static_cast<WPARAM>(CommandOf(key)), MAKELPARAM(!visible, 0));
}

void Toolbar::FollowForm() {
    Send(TB_AUTOSIZE); // takes the new width
    Send(TB_AUTOSIZE); // wraps the buttons for it, and takes the height that they need
}

int Toolbar::Height() const noexcept {
    return HeightOf(Bounds());
}

int Toolbar::RightmostButtonEdge() const {
    LONG edge = 0;
    for (int index = 0; index < ButtonCount(); ++index) {
        RECT bounds{};
        if (Send(TB_GETITEMRECT, static_cast<WPARAM>(index), &bounds) != 0)
            edge = std::max(edge, bounds.right);
    }
    return edge;
}

std::int32_t Toolbar::ButtonCount() const {
    return static_cast<std::int32_t>(buttons_.size());
}

std::string Toolbar::ButtonKey(std::int32_t button) const {
    return At(button).design.key;
}

ToolbarButtonStyle Toolbar::ButtonStyle(std::int32_t button) const {
    return At(button).design.style;
}

std::string* Toolbar::PropertyOf(Button& button, const std::string& property) {
    if (property == "Caption")
        return &button.caption;
    if (property == "ToolTipText")
        return &button.design.toolTip;
    if (property == "Description")
        return &button.description;
    ThrowNoSuchMember(button.design.key, property);
}

std::string Toolbar::ButtonProperty(std::int32_t button, const std::string& property) const {
    Button copy = At(button);
    return *PropertyOf(copy, property);
}

void Toolbar::SetButtonProperty(std::int32_t button, const std::string& property,
                                const std::string& text) {
    std::string& value = *PropertyOf(At(button), property);
    if (value == text)
        return;
    value = text;
    ShowTexts(At(button));
    if (property == "Caption") {
        FollowForm();
        Host().RequestLayout();
    }
}

std::int32_t Toolbar::MenuCount(std::int32_t button) const {
    return static_cast<std::int32_t>(At(button).design.menu.size());
}

std::string Toolbar::MenuKey(std::int32_t button, std::int32_t entry) const {
    return At(button).design.menu.at(static_cast<std::size_t>(entry) - 1).key;
}

std::string Toolbar::MenuText(std::int32_t button, std::int32_t entry) const {
    return At(button).design.menu.at(static_cast<std::size_t>(entry) - 1).text;
}

void Toolbar::SetMenuText(std::int32_t button, std::int32_t entry, const std::string& text) {
    At(button).design.menu.at(static_cast<std::size_t>(entry) - 1).text = text;
}

void Toolbar::OnCommand(WPARAM wParam) {
    if (FindCommand(LOWORD(wParam)) != nullptr)
        Raise(onCommand, static_cast<int>(LOWORD(wParam)));
}

MessageResult Toolbar::OnNotify(NMHDR& header) {
    if (header.code == TBN_GETINFOTIPW) {
        auto& tip = reinterpret_cast<NMTBGETINFOTIPW&>(header);
        if (const Button* button = FindCommand(tip.iItem))
            lstrcpynW(tip.pszText, ToUtf16(button->design.toolTip).c_str(), tip.cchTextMax);
        return 0;
    }
    if (header.code == TBN_DROPDOWN) {
        if (const Button* button = FindCommand(reinterpret_cast<const NMTOOLBARW&>(header).iItem))
            OpenMenu(*button);
        return TBDDRET_DEFAULT;
    }
    return {};
}

void Toolbar::OpenMenu(const Button& button) {
    const MenuHandle menu(CreatePopupMenu());
    for (const ToolbarMenuDesign& entry : button.design.menu)
        AppendMenuW(menu.Get(), MF_STRING, static_cast<UINT_PTR>(entry.command),
                    ToUtf16(entry.text).c_str());
    TPMPARAMS around{};
    around.cbSize = sizeof around;
    Send(TB_GETRECT, static_cast<WPARAM>(button.design.command), &around.rcExclude);
    MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&around.rcExclude), 2);
    const int command =
        TrackPopupMenuEx(menu.Get(), TPM_LEFTALIGN | TPM_VERTICAL | TPM_LEFTBUTTON | TPM_RETURNCMD,
                         around.rcExclude.left, around.rcExclude.bottom, Host().Handle(), &around);
    // Later: the toolbar still handles the press of its button.
    if (command != 0)
        PostMessageW(Host().Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

void Toolbar::ApplyScale() {
    Control::ApplyScale();
    images_.Fit(Scale().FromDesign(kIconSize));
    const int side = Scale().FromDesign(kIconSize);
    const int padding = Scale().FromDesign(8);
    Send(TB_SETBITMAPSIZE, 0, MAKELPARAM(side, side));
    Send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images_.Handle()));
    Send(TB_SETPADDING, 0, MAKELPARAM(padding, padding));
    Send(TB_SETBUTTONSIZE, 0, MAKELPARAM(side + padding, side + padding));
    FollowForm();
}

Toolbar::Button& Toolbar::At(std::int32_t button) {
    return buttons_.at(static_cast<std::size_t>(button) - 1);
}

const Toolbar::Button& Toolbar::At(std::int32_t button) const {
    return buttons_.at(static_cast<std::size_t>(button) - 1);
}

const Toolbar::Button* Toolbar::FindCommand(int command) const {
    const auto found = std::find_if(buttons_.begin(), buttons_.end(), [command](const Button& b) {
        return b.design.command == command && StyleOf(b.design.style) != BTNS_SEP;
    });
    return found != buttons_.end() ? &*found : nullptr;
}

int Toolbar::CommandOf(const std::string& key) const {
    const auto found = std::find_if(buttons_.begin(), buttons_.end(),
                                    [&key](const Button& b) { return b.design.key == key; });
    if (found == buttons_.end())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, ErrorTexts::NoSuchButton,
                           {Quoted(key)});
    return found->design.command;
}
