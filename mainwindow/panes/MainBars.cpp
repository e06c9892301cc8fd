#include "mainwindow/panes/MainBars.h"

#include "mainwindow/CommandTable.h"
#include "mainwindow/ToolbarTable.h"

#include <algorithm>

namespace {

// Separators need a number of their own to be hidden by.
constexpr int kFirstSeparator = 3001;

ShortcutDesign DesignOf(int command, const Shortcut& shortcut) {
    return {.command = command,
            .ctrl = shortcut.ctrl,
            .shift = shortcut.shift,
            .key = shortcut.key,
            .leavesTextEntryAlone = shortcut.reach == ShortcutReach::OutsideText,
            .onlyInControl = shortcut.reach == ShortcutReach::ListOnly ? IDC_lvColor : 0};
}

std::vector<ToolbarMenuDesign> MenuOf(const ToolbarRow& button) {
    std::vector<ToolbarMenuDesign> menu;
    for (const ButtonMenuRow& row : kButtonMenuRows)
        if (std::string(row.buttonKey) == button.key)
            menu.push_back({row.key, row.text, row.command});
    return menu;
}

void AddEntries(MenuBar& menu) {
    for (const MenuRow& row : MenuRows()) {
        switch (row.place) {
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

void MainBars::BuildMenu(MenuBar& menu) {
    AddEntries(menu);
    for (const KeyRow& row : kKeyRows)
        menu.AddKey(row.key, row.name, row.caption);
    for (const MenuRow& row : MenuRows())
        if (row.shortcut.key != 0)
            menu.AddShortcut(DesignOf(row.command, row.shortcut));
}

std::vector<ShortcutDesign> MainBars::ShortcutKeys() {
    std::vector<ShortcutDesign> keys;
    for (const MenuRow& row : MenuRows())
        for (const Shortcut& shortcut : {row.shortcut, row.otherShortcut})
            if (shortcut.key != 0)
                keys.push_back(DesignOf(row.command, shortcut));
    return keys;
}

std::vector<ToolbarButtonDesign> MainBars::ToolbarButtonDesigns() {
    std::vector<ToolbarButtonDesign> buttons;
    buttons.reserve(kToolbarRows.size());
    int separator = kFirstSeparator;
    for (const ToolbarRow& row : kToolbarRows)
        buttons.push_back({row.key, row.style, row.toolTip,
                           row.command != 0 ? row.command : separator++, row.icon, MenuOf(row)});
    return buttons;
}

std::vector<std::string> MainBars::ToolbarIcons() {
    std::vector<std::string> icons;
    for (const ToolbarRow& row : kToolbarRows)
        if (*row.icon != '\0')
            icons.emplace_back(row.icon);
    return icons;
}

bool MainBars::IsMenuCommand(int command) {
    return FindCommand(command) != nullptr;
}

void MainBars::SetMenuChecked(int command, bool checked) {
    controls_.menu.SetChecked(command, checked);
}

std::string MainBars::MenuCaption(int command) const {
    return controls_.menu.Caption(command);
}

void MainBars::SetMenuText(int command, const std::string& text) {
    controls_.menu.ShowInstead(command, text);
}

void MainBars::SetMenuEnabled(int command, bool enabled) {
    controls_.menu.SetGrey(command, !enabled);
}

void MainBars::SetButtonPressed(const std::string& buttonKey, bool pressed) {
    controls_.toolbar.SetPressed(buttonKey, pressed);
}

void MainBars::SetButtonVisible(const std::string& buttonKey, bool visible) {
    controls_.toolbar.SetVisible(buttonKey, visible);
}

void MainBars::SetToolbarVisible(bool visible) {
    controls_.toolbar.Show(visible);
}

void MainBars::SetStatusBarVisible(bool visible) {
    controls_.statusBar.Show(visible);
}

// The bars place themselves, also while the window is maximised.
void MainBars::ArrangeBars() {
    controls_.toolbar.FollowForm();
    controls_.statusBar.FollowForm();
    if (onArranged)
        onArranged();
}

void MainBars::SetInfoPanelText(const std::string& text) {
    controls_.statusBar.SetPanelText(text);
}
