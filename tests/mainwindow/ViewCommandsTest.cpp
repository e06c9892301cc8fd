// Rules: Layout, bars and views
#include "mainwindow/ViewCommands.h"

#include "mainwindow/CommandTable.h"
#include "mainwindow/ToolbarTable.h"
#include "resources/controls.h"
#include "mainwindow/LibraryTips.h"
#include "tests/fakes/FakeMainView.h"
#include "tests/fakes/FakeTexts.h"
#include "tests/fakes/Transcripts.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <vector>

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
    ColorLibrary library;
    FakeTexts texts;
    LibraryTips tips{library, texts};
    ViewCommands views{
        {.bars = view, .tree = view, .list = view, .editor = view}, tips, layout, settings};
};

constexpr std::array kBars = {IDM_mnuViewBarStandards, IDM_mnuViewBarColor, IDM_mnuViewBarListview,
                              IDM_mnuViewBarSolidWorks};

// A line for each switch: its entry, and the buttons of its bar.
TEST_F(ViewCommandsTest, EachBarSwitchHidesAndShowsExactlyItsButtons) {
    std::string lines;
    Keys all;
    for (const int command : kBars) {
        const Keys buttons = ButtonsSwitchedBy(command, false);
        EXPECT_FALSE(view.checks.at(command));
        EXPECT_EQ(ButtonsSwitchedBy(command, true), buttons) << command;
        EXPECT_TRUE(view.checks.at(command));
        EXPECT_TRUE(view.toolbarVisible && view.statusBarVisible);
        lines += FindCommand(command)->name + std::string(":");
        for (const std::string& key : buttons)
            lines += " " + key + ",";
        lines.back() = '\n';
        all.insert(buttons.begin(), buttons.end());
    }
    ExpectTranscript(lines);
    EXPECT_EQ(all.size(), kToolbarRows.size()) << "the bars together hold every button";
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
        {IDM_mnuViewHugeColorDialog, &Settings::viewHugeColorDialog},
        {IDM_mnuViewColorsInList, &Settings::viewColorsInList},
        {IDM_mnuViewMaterialPreview, &Settings::viewMaterialPreview}};
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

TEST_F(ViewCommandsTest, ColorsInTheListAreOffUntilTheirSwitchShowsThem) {
    EXPECT_FALSE(view.checks.at(IDM_mnuViewColorsInList));
    views.ApplySettings();
    EXPECT_FALSE(view.rowColorsShown);
    EXPECT_EQ(view.nodeTips, nullptr);
    for (const bool shown : {true, false}) {
        views.Toggle(IDM_mnuViewColorsInList);
        EXPECT_EQ(view.rowColorsShown, shown);
        EXPECT_EQ(view.nodeTips, shown ? &tips : nullptr) << "the tree's tips show them, too";
    }
    settings.viewColorsInList = true;
    views.ApplySettings();
    EXPECT_TRUE(view.rowColorsShown);
    EXPECT_TRUE(view.checks.at(IDM_mnuViewColorsInList));
}

TEST_F(ViewCommandsTest, MaterialPreviewIsOffUntilItsSwitchShowsItWhicheverSwatchIsShown) {
    EXPECT_FALSE(view.checks.at(IDM_mnuViewMaterialPreview));
    views.ApplySettings();
    EXPECT_FALSE(view.materialShown);
    for (const bool shown : {true, false}) {
        views.Toggle(IDM_mnuViewMaterialPreview);
        EXPECT_EQ(view.materialShown, shown);
        EXPECT_FALSE(view.layout.hugeFrameShown) << "it is a setting and opens nothing";
    }
    settings.viewMaterialPreview = true;
    views.ApplySettings();
    EXPECT_TRUE(view.materialShown);
    EXPECT_TRUE(view.checks.at(IDM_mnuViewMaterialPreview));
}

// The buttons of the views stand in the order of the views.
TEST_F(ViewCommandsTest, OneOfTheFourViewsIsMarkedAndPressed) {
    std::vector<ToolbarRow> buttons;
    std::ranges::copy_if(kToolbarRows, std::back_inserter(buttons), [](const ToolbarRow& row) {
        return row.style == ToolbarButtonStyle::ButtonGroup;
    });
    constexpr std::array modes = {ListViewMode::LargeIcons, ListViewMode::SmallIcons,
                                  ListViewMode::List, ListViewMode::Details};
    ASSERT_EQ(buttons.size(), modes.size());
    for (std::size_t shown = 0; shown < modes.size(); ++shown) {
        views.SetListView(modes.at(shown));
        EXPECT_EQ(view.listMode, modes.at(shown));
        EXPECT_EQ(PressedButtons(), Keys{buttons[shown].key});
        for (std::size_t other = 0; other < buttons.size(); ++other)
            EXPECT_EQ(view.checks.at(buttons[other].command), other == shown);
    }
}

TEST_F(ViewCommandsTest, ButtonThatTheToolbarPressedByItselfComesUpAgain) {
    views.SetListView(ListViewMode::Details);
    view.presses = {{"View List", true}};
    views.ShowPressedView();
    EXPECT_EQ(PressedButtons(), Keys{"View Details"});
}

} // namespace
