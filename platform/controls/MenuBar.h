#pragma once

#include "common/ports/LocalizableForm.h"
#include "platform/controls/HiddenCaption.h"
#include "platform/Handles.h"
#include "platform/Shortcuts.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// One title, entry or separator of a menu.  Its caption is shown as soon as it is set.
class MenuEntry : public FormControl {
public:
    // redrawBar: for an entry that stands in the bar of a window.
    MenuEntry(HMENU menu, int command, std::string name, std::function<void()> redrawBar)
        : menu_(menu), command_(command), name_(std::move(name)), redrawBar_(std::move(redrawBar)) {
    }

    [[nodiscard]] std::string Name() const override { return name_; }
    [[nodiscard]] std::string TypeName() const override { return "Menu"; }
    [[nodiscard]] std::string Property(const std::string& property) const override;
    void SetProperty(const std::string& property, const std::string& text) override;

    // submenu: null for an entry that runs a command.
    void Append(const std::string& caption, HMENU submenu);
    void AppendSeparator(const std::string& caption);
    void SetShortcut(const std::string& text); // shown behind the caption
    void ShowInstead(const std::string& text); // of the caption, which stays; empty: the caption
    void SetChecked(bool checked);
    void SetGrey(bool grey);
    [[nodiscard]] HMENU Submenu() const;

private:
    void ShowTexts();
    [[nodiscard]] std::wstring ShownText() const;

    HMENU menu_;
    int command_;
    std::string name_;
    std::function<void()> redrawBar_;
    std::string shortcut_;
    std::string caption_;
    std::string instead_;
    bool separator_ = false;
    UINT position_ = 0;
};

// The menu bar of a form.  It is built from its start to its end: each entry goes into the title or
// submenu that was added last.
class MenuBar {
public:
    MenuBar();
    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

    void AddTitle(int command, const char* name, const char* caption);
    void AddSubmenu(int command, const char* name, const char* caption);
    void AddEntry(int command, const char* name, const char* caption);
    void AddSubmenuEntry(int command, const char* name, const char* caption);
    void AddSeparator(int command, const char* name, const char* caption);

    // The key's name in the shortcuts, as a control of the form.
    void AddKey(WORD virtualKey, const char* name, const char* caption);
    // Shows the shortcut behind the caption of its command's entry, which has been added.
    void AddShortcut(const ShortcutDesign& design);

    // The menu goes with the form's window from then on; false: the window refused it.
    bool AttachTo(HWND form);
    void SetChecked(int command, bool checked);
    void SetGrey(int command, bool grey);
    [[nodiscard]] std::string Caption(int command) const;
    void ShowInstead(int command, const std::string& text);  // of its caption; empty: the caption
    [[nodiscard]] std::vector<FormControl*> Entries() const; // and the names of keys

    // Call it before the form is shown: it has been hidden while titles were changed.
    void BringUpToDate();

    // Opens the menu under a title at a point of the screen; the form that the bar is attached to
    // gets its command.
    void OpenPopup(int titleCommand, POINT at) const;

private:
    MenuEntry& NewEntry(HMENU menu, int command, const char* name);
    void RedrawBar();
    void NameKey(WORD virtualKey, const std::string& caption);
    [[nodiscard]] MenuEntry& Find(int command) const;

    HWND form_ = nullptr; // that shows it
    bool isBarOld_ = false;
    MenuHandle owned_; // until a window takes the menu over
    HMENU bar_;
    HMENU open_ = nullptr;    // menu of the last title
    HMENU submenu_ = nullptr; // the last submenu
    std::vector<std::unique_ptr<MenuEntry>> entries_;
    std::map<int, MenuEntry*> byCommand_;
    std::vector<std::unique_ptr<HiddenCaption>> keys_;
    KeyNames keyNames_;
    std::vector<ShortcutDesign> shortcuts_;
};
