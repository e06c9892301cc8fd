#include "platform/controls/MenuBar.h"

#include "platform/controls/NoSuchMember.h"
#include "platform/Utf16.h"

#include <utility>

namespace {

constexpr const char* kCaption = "Caption";

} // namespace

std::string MenuEntry::Property(const std::string& property) const {
    if (property != kCaption)
        ThrowNoSuchMember(name_, property);
    return caption_;
}

void MenuEntry::SetProperty(const std::string& property, const std::string& text) {
    if (property != kCaption)
        ThrowNoSuchMember(name_, property);
    if (text == caption_)
        return;
    caption_ = text;
    if (!separator_)
        ShowTexts();
}

void MenuEntry::ShowInstead(const std::string& text) {
    if (std::exchange(instead_, text) != text)
        ShowTexts();
}

void MenuEntry::SetShortcut(const std::string& text) {
    shortcut_ = text;
    ShowTexts();
}

void MenuEntry::ShowTexts() {
    std::wstring shown = ShownText();
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STRING;
    item.dwTypeData = shown.data();
    SetMenuItemInfoW(menu_, position_, TRUE, &item);
    if (redrawBar_)
        redrawBar_();
}

std::wstring MenuEntry::ShownText() const {
    const std::string& text = instead_.empty() ? caption_ : instead_;
    return ToUtf16(shortcut_.empty() ? text : text + "\t" + shortcut_);
}

void MenuEntry::Append(const std::string& caption, HMENU submenu) {
    caption_ = caption;
    position_ = static_cast<UINT>(GetMenuItemCount(menu_));
    std::wstring shown = ShownText();
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_STRING | (submenu != nullptr ? MIIM_SUBMENU : 0U);
    item.wID = static_cast<UINT>(command_);
    item.hSubMenu = submenu;
    item.dwTypeData = shown.data();
    InsertMenuItemW(menu_, position_, TRUE, &item);
}

void MenuEntry::AppendSeparator(const std::string& caption) {
    caption_ = caption;
    separator_ = true;
    position_ = static_cast<UINT>(GetMenuItemCount(menu_));
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_FTYPE;
    item.fType = MFT_SEPARATOR;
    item.wID = static_cast<UINT>(command_);
    InsertMenuItemW(menu_, position_, TRUE, &item);
}

void MenuEntry::SetChecked(bool checked) {
    CheckMenuItem(menu_, position_, MF_BYPOSITION | (checked ? MF_CHECKED : MF_UNCHECKED));
}

void MenuEntry::SetGrey(bool grey) {
    EnableMenuItem(menu_, position_, MF_BYPOSITION | (grey ? MF_GRAYED : MF_ENABLED));
}

HMENU MenuEntry::Submenu() const {
    return GetSubMenu(menu_, static_cast<int>(position_));
}

MenuBar::MenuBar() : owned_(CreateMenu()), bar_(owned_.Get()) {}

MenuEntry& MenuBar::NewEntry(HMENU menu, int command, const char* name) {
    std::function<void()> redrawBar;
    if (menu == bar_)
        redrawBar = [this] { RedrawBar(); };
    entries_.push_back(std::make_unique<MenuEntry>(menu, command, name, std::move(redrawBar)));
    byCommand_[command] = entries_.back().get();
    return *entries_.back();
}

// Once for all changes that are made while nobody sees the bar.
void MenuBar::RedrawBar() {
    isBarOld_ = form_ != nullptr;
    if (form_ != nullptr && IsWindowVisible(form_) != FALSE)
        BringUpToDate();
}

void MenuBar::BringUpToDate() {
    if (std::exchange(isBarOld_, false))
        DrawMenuBar(form_);
}

void MenuBar::AddTitle(int command, const char* name, const char* caption) {
    open_ = CreatePopupMenu();
    NewEntry(bar_, command, name).Append(caption, open_);
}

void MenuBar::AddSubmenu(int command, const char* name, const char* caption) {
    submenu_ = CreatePopupMenu();
    NewEntry(open_, command, name).Append(caption, submenu_);
}

void MenuBar::AddEntry(int command, const char* name, const char* caption) {
    NewEntry(open_, command, name).Append(caption, nullptr);
}

void MenuBar::AddSubmenuEntry(int command, const char* name, const char* caption) {
    NewEntry(submenu_, command, name).Append(caption, nullptr);
}

void MenuBar::AddSeparator(int command, const char* name, const char* caption) {
    NewEntry(open_, command, name).AppendSeparator(caption);
}

void MenuBar::AddKey(WORD virtualKey, const char* name, const char* caption) {
    keyNames_[virtualKey] = caption;
    keys_.push_back(std::make_unique<HiddenCaption>(
        name, caption, [this, virtualKey](const std::string& text) { NameKey(virtualKey, text); }));
}

void MenuBar::NameKey(WORD virtualKey, const std::string& caption) {
    keyNames_[virtualKey] = caption;
    for (const ShortcutDesign& design : shortcuts_)
        Find(design.command).SetShortcut(ShortcutName(design, keyNames_));
}

void MenuBar::AddShortcut(const ShortcutDesign& design) {
    shortcuts_.push_back(design);
    Find(design.command).SetShortcut(ShortcutName(design, keyNames_));
}

bool MenuBar::AttachTo(HWND form) {
    if (SetMenu(form, bar_) == FALSE)
        return false;
    form_ = form;
    static_cast<void>(owned_.Release());
    return true;
}

MenuEntry& MenuBar::Find(int command) const {
    return *byCommand_.at(command);
}

void MenuBar::SetChecked(int command, bool checked) {
    Find(command).SetChecked(checked);
}

void MenuBar::SetGrey(int command, bool grey) {
    Find(command).SetGrey(grey);
}

std::string MenuBar::Caption(int command) const {
    return Find(command).Property(kCaption);
}

void MenuBar::ShowInstead(int command, const std::string& text) {
    Find(command).ShowInstead(text);
}

std::vector<FormControl*> MenuBar::Entries() const {
    std::vector<FormControl*> entries;
    entries.reserve(entries_.size() + keys_.size());
    for (const auto& entry : entries_)
        entries.push_back(entry.get());
    for (const auto& key : keys_)
        entries.push_back(key.get());
    return entries;
}

void MenuBar::OpenPopup(int titleCommand, POINT at) const {
    TrackPopupMenu(Find(titleCommand).Submenu(), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON,
                   at.x, at.y, 0, form_, nullptr);
}
