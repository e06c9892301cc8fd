#include "mainwindow/ViewCommands.h"

#include "mainwindow/ToolbarTable.h"

#include <array>
#include <vector>

namespace {

struct Switch {
    int command;
    bool Settings::*setting;
    bool designed; // state in which the window is designed
};

// In the order in which start-up runs them.
constexpr std::array kSwitches = {
    Switch{IDM_mnuViewStatusBar, &Settings::viewStatusBar, true},
    Switch{IDM_mnuViewHugeColorDialog, &Settings::viewHugeColorDialog, false},
    Switch{IDM_mnuViewToolbar, &Settings::viewToolbar, true},
    Switch{IDM_mnuViewBarStandards, &Settings::viewBarStandards, true},
    Switch{IDM_mnuViewBarColor, &Settings::viewBarColor, true},
    Switch{IDM_mnuViewBarListview, &Settings::viewBarListview, true},
    Switch{IDM_mnuViewBarSolidWorks, &Settings::viewBarSolidWorks, true},
    Switch{IDM_mnuViewColorsInList, &Settings::viewColorsInList, false},
    Switch{IDM_mnuViewMaterialPreview, &Settings::viewMaterialPreview, false},
};

struct ListView {
    ListViewMode mode;
    int command;
    const char* buttonKey;
};

constexpr std::array kListViews = {
    ListView{ListViewMode::LargeIcons, IDM_mnuViewColorLargeIcons, "View Large Icons"},
    ListView{ListViewMode::SmallIcons, IDM_mnuViewColorSmallIcons, "View Small Icons"},
    ListView{ListViewMode::List, IDM_mnuViewColorList, "View List"},
    ListView{ListViewMode::Details, IDM_mnuViewColorDetails, "View Details"},
};

struct GroupSwitch {
    int command;
    ToolbarGroup group;
};

constexpr std::array kGroupSwitches = {
    GroupSwitch{IDM_mnuViewBarStandards, ToolbarGroup::Standard},
    GroupSwitch{IDM_mnuViewBarColor, ToolbarGroup::Color},
    GroupSwitch{IDM_mnuViewBarListview, ToolbarGroup::ListView},
    GroupSwitch{IDM_mnuViewBarSolidWorks, ToolbarGroup::SolidWorks},
};

void ShowGroup(BarsPane& bars, ToolbarGroup group, bool visible) {
    for (const ToolbarRow& button : kToolbarRows)
        if (button.group == group)
            bars.SetButtonVisible(button.key, visible);
}

} // namespace

void ViewCommands::ShowDesignedState() {
    for (const Switch& row : kSwitches)
        SetMark(row.command, row.designed);
}

void ViewCommands::ApplySettings() {
    for (const Switch& row : kSwitches)
        if (settings_.*row.setting != row.designed)
            Turn(row.command);
    ArrangeWindow();
}

void ViewCommands::Toggle(int command) {
    Turn(command);
    ArrangeWindow();
}

void ViewCommands::Turn(int command) {
    SetMark(command, !marks_[command]);
    for (const Switch& row : kSwitches)
        if (row.command == command)
            settings_.*row.setting = marks_[command];
    Show(command, marks_[command]);
}

void ViewCommands::ArrangeWindow() {
    bars_.ArrangeBars();
    layout_.Resized();
}

void ViewCommands::Show(int command, bool visible) {
    if (command == IDM_mnuViewToolbar)
        bars_.SetToolbarVisible(visible);
    if (command == IDM_mnuViewStatusBar)
        bars_.SetStatusBarVisible(visible);
    if (command == IDM_mnuViewHugeColorDialog)
        layout_.SetHugeFrame(visible);
    if (command == IDM_mnuViewColorsInList)
        ShowColors(visible);
    if (command == IDM_mnuViewMaterialPreview)
        editor_.ShowMaterial(visible);
    for (const GroupSwitch& row : kGroupSwitches)
        if (row.command == command)
            ShowGroup(bars_, row.group, visible);
}

void ViewCommands::ShowColors(bool shown) {
    list_.ShowRowColors(shown);
    tree_.ShowNodeTips(shown ? &tips_ : nullptr);
}

void ViewCommands::SetListView(ListViewMode mode) {
    listView_ = mode;
    for (const ListView& view : kListViews)
        SetMark(view.command, view.mode == mode);
    ShowPressedView();
    list_.SetListViewMode(mode);
}

void ViewCommands::ShowPressedView() {
    for (const ListView& view : kListViews)
        bars_.SetButtonPressed(view.buttonKey, view.mode == listView_);
}

void ViewCommands::SetMark(int command, bool checked) {
    marks_[command] = checked;
    bars_.SetMenuChecked(command, checked);
}
