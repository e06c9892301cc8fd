#pragma once

#include "common/ports/LocalizableForm.h"
#include "platform/Handles.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

// One title, entry or separator of a menu.  Its caption is shown as soon as it is set.
class MenuEntry : public FormControl {
public:
    MenuEntry(HMENU menu, int command, std::string name, std::string shortcut);

    [[nodiscard]] std::string Name() const override { return name_; }
    [[nodiscard]] std::string TypeName() const override { return "Menu"; }
    [[nodiscard]] std::string Property(const std::string& property) const override;
    void SetProperty(const std::string& property, const std::string& text) override;

    // submenu: null for an entry that runs a command.
    void Append(const std::string& caption, HMENU submenu);
    void AppendSeparator(const std::string& caption);
    void SetChecked(bool checked);
    [[nodiscard]] HMENU Submenu() const;

private:
    [[nodiscard]] std::wstring ShownText() const;

    HMENU menu_;
    int command_;
    std::string name_;
    std::string shortcut_; // shown behind the caption
    std::string caption_;
    bool separator_ = false;
    UINT position_ = 0;
};

// The menu bar of a form.  It is built from its start to its end: each entry goes into the title or
// submenu that was added last.
class MenuBar {
public:
    MenuBar();

    void AddTitle(int command, const char* name, const char* caption);
    void AddSubmenu(int command, const char* name, const char* caption);
    void AddEntry(int command, const char* name, const char* caption,
                  const std::string& shortcut = {});
    void AddSubmenuEntry(int command, const char* name, const char* caption);
    void AddSeparator(int command, const char* name, const char* caption);

    // The menu goes with the form's window from then on; false: the window refused it.
    bool AttachTo(HWND form);
    void SetChecked(int command, bool checked);
    [[nodiscard]] std::vector<FormControl*> Entries() const;

    // Opens the menu under a title at a point of the screen; the form gets its command.
    void OpenPopup(int titleCommand, HWND form, POINT at) const;

private:
    MenuEntry& NewEntry(HMENU menu, int command, const char* name, const std::string& shortcut);
    [[nodiscard]] MenuEntry& Find(int command) const;

    MenuHandle owned_; // until a window takes the menu over
    HMENU bar_;
    HMENU open_ = nullptr;    // menu of the last title
    HMENU submenu_ = nullptr; // the last submenu
    std::vector<std::unique_ptr<MenuEntry>> entries_;
    std::map<int, MenuEntry*> byCommand_;
};
