// Rules: Layout, bars and views
#include "mainwindow/ViewCommands.h"

#include "mainwindow/ToolbarTable.h"
#include "tests/fakes/FakeMainView.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using Keys = std::set<std::string>;

class ViewCommandsTest : public testing::Test {
protected:
    ViewCommandsTest() { views.ShowDesignedState(); }

    // The buttons whose visibility the switch sets, all of them to the same.
    [[nodiscard]] Keys ButtonsSwitchedBy(int command, bool visible) {
        view.buttonsVisible.clear();
        views.Toggle(command);
        Keys keys;
        for (const auto& [key, shown] : view.buttonsVisible) {
            keys.insert(key);
            EXPECT_EQ(shown, visible) << key;
        }
        return keys;
    }
    [[nodiscard]] Keys PressedButtons() const {
        Keys keys;
        for (const auto& [key, pressed] : view.presses)
            if (pressed)
                keys.insert(key);
        return keys;
    }

    FakeMainView view;
    Settings settings;
    LayoutController layout{view};
    ViewCommands views{view, view, layout, settings};
};

const std::map<int, Keys> kButtonsOfSwitch = {
    {IDM_mnuViewBarStandards,
     {"sepST1", "New", "sepST2", "Open", "Close", "Save", "sepST3", "Delete"}},
    {IDM_mnuViewBarColor,
     {"sepCO1", "Cut", "Copy", "Paste", "sepCO2", "ToggleColorFrame", "UpdateColor"}},
    {IDM_mnuViewBarListview,
     {"sepLV1", "View Large Icons", "View Small Icons", "View List", "View Details"}},
    {IDM_mnuViewBarSolidWorks,
     {"sepSWX1", "GetSWX", "NewColorUpdate", "SetSWX", "SetSWXComponent", "sepSWX2",
      "ClearColorSWX", "ClearColorComponentSWX"}}};

TEST_F(ViewCommandsTest, EachBarSwitchHidesAndShowsExactlyItsButtons) {
    for (const auto& [command, buttons] : kButtonsOfSwitch)
        for (const bool visible : {false, true}) {
            EXPECT_EQ(ButtonsSwitchedBy(command, visible), buttons) << command;
            EXPECT_EQ(view.checks.at(command), visible);
            EXPECT_TRUE(view.toolbarVisible && view.statusBarVisible);
        }
}

TEST_F(ViewCommandsTest, BarsTogetherHoldEveryButtonOfTheToolbar) {
    Keys all;
    for (const auto& [command, buttons] : kButtonsOfSwitch)
        all.insert(buttons.begin(), buttons.end());
    EXPECT_EQ(all.size(), kToolbarRows.size());
}

TEST_F(ViewCommandsTest, ToolbarAndStatusBarAreSwitchedWhole) {
    for (const bool visible : {false, true}) {
        EXPECT_EQ(ButtonsSwitchedBy(IDM_mnuViewToolbar, visible), Keys{});
        EXPECT_EQ(view.toolbarVisible, visible);
        EXPECT_EQ(ButtonsSwitchedBy(IDM_mnuViewStatusBar, visible), Keys{});
        EXPECT_EQ(view.statusBarVisible, visible);
    }
}

TEST_F(ViewCommandsTest, EverySwitchRunsTheLayoutPassAndItsSettingFollowsTheMark) {
    const std::map<int, bool Settings::*> settingOfSwitch = {
        {IDM_mnuViewToolbar, &Settings::viewToolbar},
        {IDM_mnuViewStatusBar, &Settings::viewStatusBar},
        {IDM_mnuViewBarStandards, &Settings::viewBarStandards},
        {IDM_mnuViewBarColor, &Settings::viewBarColor},
        {IDM_mnuViewBarListview, &Settings::viewBarListview},
        {IDM_mnuViewBarSolidWorks, &Settings::viewBarSolidWorks},
        {IDM_mnuViewHugeColorDialog, &Settings::viewHugeColorDialog}};
    for (const auto& [command, setting] : settingOfSwitch)
        for (int time = 0; time < 2; ++time) {
            const bool before = view.checks.at(command);
            const int layouts = view.layouts;
            views.Toggle(command);
            EXPECT_EQ(view.checks.at(command), !before) << command;
            EXPECT_EQ(settings.*setting, !before) << command;
            EXPECT_GT(view.layouts, layouts) << command;
        }
}

TEST_F(ViewCommandsTest, BarsAreArrangedBeforeTheLayoutThatTakesTheirHeight) {
    for (const int command : {IDM_mnuViewToolbar, IDM_mnuViewBarStandards, IDM_mnuViewBarColor,
                              IDM_mnuViewBarListview, IDM_mnuViewBarSolidWorks}) {
        const int arrangements = view.barArrangements;
        views.Toggle(command);
        EXPECT_EQ(view.barArrangements, arrangements + 1) << command;
        EXPECT_LT(view.layoutsBeforeBars, view.layouts) << command;
    }
}

TEST_F(ViewCommandsTest, LargeEditorTakesItsHeightFromThePanes) {
    layout.Resized();
    const float before = view.layout.tree.height;
    views.Toggle(IDM_mnuViewHugeColorDialog);
    EXPECT_LT(view.layout.tree.height, before);
    views.Toggle(IDM_mnuViewHugeColorDialog);
    EXPECT_EQ(view.layout.tree.height, before);
}

TEST_F(ViewCommandsTest, OneOfTheFourViewsIsMarkedAndPressed) {
    struct View {
        ListViewMode mode;
        int command;
        std::string button;
    };
    const std::vector<View> all = {
        {ListViewMode::LargeIcons, IDM_mnuViewColorLargeIcons, "View Large Icons"},
        {ListViewMode::SmallIcons, IDM_mnuViewColorSmallIcons, "View Small Icons"},
        {ListViewMode::List, IDM_mnuViewColorList, "View List"},
        {ListViewMode::Details, IDM_mnuViewColorDetails, "View Details"}};
    for (const View& shown : all) {
        views.SetListView(shown.mode);
        EXPECT_EQ(view.listMode, shown.mode);
        EXPECT_EQ(PressedButtons(), Keys{shown.button});
        for (const View& other : all)
            EXPECT_EQ(view.checks.at(other.command), other.command == shown.command);
    }
}

TEST_F(ViewCommandsTest, ButtonThatTheToolbarPressedByItselfComesUpAgain) {
    views.SetListView(ListViewMode::Details);
    view.presses = {{"View List", true}};
    views.ShowPressedView();
    EXPECT_EQ(PressedButtons(), Keys{"View Details"});
}

} // namespace
