#include "mainwindow/frmMainBars.h"

#include "mainwindow/CommandTable.h"

#include <algorithm>

namespace {

// Separators need a number of their own to be hidden by.
constexpr int kFirstSeparator = 3001;

ShortcutDesign KeyOf(const MenuRow& row) {
    return {row.command, row.shortcut.ctrl, row.shortcut.shift, row.shortcut.key,
            row.shortcut.leavesTextEntryAlone};
}

std::vector<ToolbarMenuDesign> MenuOf(const ToolbarRow& button) {
    std::vector<ToolbarMenuDesign> menu;
    for (const ButtonMenuRow& row : kButtonMenuRows)
        if (std::string(row.buttonKey) == button.key)
            menu.push_back({row.key, row.text, row.command});
    return menu;
}

void AddEntries(MenuBar& menu) {
    for (const MenuRow& row : kMenuRows) {
        switch (row.kind) {
        case MenuKind::Title:
            menu.AddTitle(row.command, row.name, row.caption);
            break;
        case MenuKind::Submenu:
            menu.AddSubmenu(row.command, row.name, row.caption);
            break;
        case MenuKind::Entry:
            menu.AddEntry(row.command, row.name, row.caption);
            break;
        case MenuKind::SubmenuEntry:
            menu.AddSubmenuEntry(row.command, row.name, row.caption);
            break;
        case MenuKind::Separator:
            menu.AddSeparator(row.command, row.name, row.caption);
            break;
        }
    }
}

} // namespace

namespace MainBars {

void BuildMenu(MenuBar& menu) {
    AddEntries(menu);
    for (const KeyRow& row : kKeyRows)
        menu.AddKey(row.key, row.name, row.caption);
    for (const ShortcutDesign& shortcut : ShortcutKeys())
        menu.AddShortcut(shortcut);
}

std::vector<ShortcutDesign> ShortcutKeys() {
    std::vector<ShortcutDesign> keys;
    for (const MenuRow& row : kMenuRows)
        if (row.shortcut.key != 0)
            keys.push_back(KeyOf(row));
    return keys;
}

std::vector<ToolbarButtonDesign> ToolbarButtonDesigns() {
    std::vector<ToolbarButtonDesign> buttons;
    buttons.reserve(kToolbarRows.size());
    int separator = kFirstSeparator;
    for (const ToolbarRow& row : kToolbarRows)
        buttons.push_back({row.key, row.style, row.toolTip,
                           row.command != 0 ? row.command : separator++, row.icon, MenuOf(row)});
    return buttons;
}

std::vector<std::string> ToolbarIcons() {
    std::vector<std::string> icons;
    for (const ToolbarRow& row : kToolbarRows)
        if (*row.icon != '\0')
            icons.emplace_back(row.icon);
    return icons;
}

bool IsMenuCommand(int command) {
    return std::any_of(kMenuRows.begin(), kMenuRows.end(),
                       [command](const MenuRow& row) { return row.command == command; });
}

} // namespace MainBars
