// Rules: Layout, bars and views
#include "mainwindow/LayoutController.h"

#include "mainwindow/Layout.h"
#include "tests/fakes/FakeMainView.h"

#include <gtest/gtest.h>

namespace {

class LayoutTest : public testing::Test {
protected:
    FakeMainView
        view; // form 12000, inner 11760 x 8000, toolbar 400, status 300, frame 2400, strip 360
    LayoutController layout{view};
};

TEST_F(LayoutTest, ListStandsBesideTheTree) {
    layout.Resized();
    EXPECT_EQ(view.layout.tree.width, 3000);
    EXPECT_EQ(view.layout.splitter.left, 3000);
    EXPECT_EQ(view.layout.list.left, 3040);
    EXPECT_EQ(view.layout.list.width, 12000 - (3000 + 140));
}

TEST_F(LayoutTest, PanesStandBetweenToolbarAndColorArea) {
    layout.Resized();
    EXPECT_EQ(view.layout.tree.top, 400);
    EXPECT_EQ(view.layout.list.top, 400);
    EXPECT_EQ(view.layout.tree.height, 8000 - 400 - (360 + 40) - 300);
    EXPECT_EQ(view.layout.list.height, view.layout.tree.height);
    EXPECT_EQ(view.layout.splitter.top, view.layout.tree.top);
    EXPECT_EQ(view.layout.splitter.height, view.layout.tree.height);
}

TEST_F(LayoutTest, SmallSwatchLeavesFortyTwipsAtItsRight) {
    layout.Resized();
    EXPECT_FALSE(view.layout.hugeFrameShown);
    EXPECT_EQ(view.layout.smallSwatch.width, 11760 - 40);
    EXPECT_EQ(view.layout.smallSwatch.top, view.layout.tree.top + view.layout.tree.height);
}

TEST_F(LayoutTest, FrameSpansTheInnerWidth) {
    layout.SetHugeFrame(true);
    layout.Resized();
    EXPECT_TRUE(view.layout.hugeFrameShown);
    EXPECT_EQ(view.layout.frame.width, 11760);
    EXPECT_EQ(view.layout.tree.height, 8000 - 400 - (2400 + 40) - 300);
    EXPECT_EQ(view.layout.frame.top, view.layout.tree.top + view.layout.tree.height);
}

TEST_F(LayoutTest, TogglingTwiceRestoresTheFirstLayout) {
    layout.Resized();
    const TwipsRect before = view.layout.tree;
    layout.SetHugeFrame(true);
    layout.Resized();
    layout.SetHugeFrame(false);
    layout.Resized();
    EXPECT_EQ(view.layout.tree, before);
    EXPECT_FALSE(view.layout.hugeFrameShown);
}

TEST_F(LayoutTest, HiddenBarsGiveTheirRoomToThePanes) {
    view.metrics.toolbarHeight = 0;
    view.metrics.statusBarHeight = 0;
    layout.Resized();
    EXPECT_EQ(view.layout.tree.top, 0);
    EXPECT_EQ(view.layout.tree.height, 8000 - 400);
}

TEST_F(LayoutTest, FormNarrowerThanTheSmallestPaneGivesNoNegativeWidth) {
    view.metrics.formWidth = 400;
    view.metrics.innerWidth = 30;
    view.metrics.innerHeight = 0;
    layout.Resized();
    for (const TwipsRect& place : {view.layout.tree, view.layout.list, view.layout.splitter,
                                   view.layout.frame, view.layout.smallSwatch}) {
        EXPECT_GE(place.width, 0);
        EXPECT_GE(place.height, 0);
    }
}

TEST_F(LayoutTest, VeryLowFormKeepsPanesOfThreeHundred) {
    view.metrics.innerHeight = 500;
    layout.Resized();
    EXPECT_EQ(view.layout.tree.height, 300);
    EXPECT_EQ(view.layout.smallSwatch.top, 700) << "the panes overlap what lies below";
}

TEST_F(LayoutTest, NothingHappensWhileMinimisedOrMaximised) {
    for (const WindowState state : {WindowState::Minimised, WindowState::Maximised}) {
        view.metrics.state = state;
        layout.Resized();
        EXPECT_EQ(view.layouts, 0);
    }
}

TEST_F(LayoutTest, EditorTogglesAlsoWhileMaximisedButThePanesStay) {
    layout.Resized();
    const TwipsRect before = view.layout.tree;
    view.metrics.state = WindowState::Maximised;
    view.metrics.innerHeight = 12000;
    layout.SetHugeFrame(true);
    layout.Resized();
    EXPECT_TRUE(view.layout.hugeFrameShown);
    EXPECT_EQ(view.layout.tree, before);
}

TEST_F(LayoutTest, NewScaleAppliesTheLayoutAnewInEveryWindowState) {
    layout.Resized();
    const MainLayout before = view.layout;
    view.metrics.state = WindowState::Maximised;
    view.metrics.formWidth = 20000;
    view.layout = {};
    layout.ScaleChanged();
    EXPECT_EQ(view.layout.list, before.list);
    EXPECT_EQ(view.layout.splitter, before.splitter);
}

TEST(SizeControls, ClampsToSevenHundredFiftyFromBothEdges) {
    MainLayout layout;
    float x = 100;
    Layout::SizeControls(x, 12000, layout);
    EXPECT_EQ(x, 750);
    x = 11900;
    Layout::SizeControls(x, 12000, layout);
    EXPECT_EQ(x, 12000 - 750);
    EXPECT_EQ(layout.list.width, 12000 - (12000 - 750 + 140));
}

TEST(SizeControls, UpperBoundWinsInANarrowForm) {
    MainLayout layout;
    float x = 1000;
    Layout::SizeControls(x, 1400, layout);
    EXPECT_EQ(x, 650);
    EXPECT_EQ(layout.tree.width, 650);
}

TEST_F(LayoutTest, PressedSplitterShowsAHalfAsWideAndALittleShorterBar) {
    layout.Resized();
    layout.SplitterPressed();
    EXPECT_TRUE(view.splitterBarShown);
    EXPECT_EQ(view.splitterBar.left, view.layout.splitter.left);
    EXPECT_EQ(view.splitterBar.top, view.layout.splitter.top);
    EXPECT_EQ(view.splitterBar.width, view.layout.splitter.width / 2);
    EXPECT_EQ(view.splitterBar.height, view.layout.splitter.height - 20);
}

TEST_F(LayoutTest, DraggedSplitterMovesTheBarAloneUntilItIsReleased) {
    layout.Resized();
    layout.SplitterPressed();
    layout.SplitterDragged(500);
    EXPECT_EQ(view.splitterBar.left, 3500);
    EXPECT_EQ(view.layout.tree.width, 3000);
    layout.SplitterReleased();
    EXPECT_FALSE(view.splitterBarShown);
    EXPECT_EQ(view.layout.tree.width, 3500);
    EXPECT_EQ(view.layout.list.left, 3540);
}

TEST_F(LayoutTest, BarStopsAtTheLimitsAndThePanesTakeThemExactly) {
    layout.Resized();
    layout.SplitterPressed();
    layout.SplitterDragged(-9000);
    EXPECT_EQ(view.splitterBar.left, 750);
    layout.SplitterReleased();
    EXPECT_EQ(view.layout.tree.width, 750);
    layout.SplitterPressed();
    layout.SplitterDragged(90000);
    EXPECT_EQ(view.splitterBar.left, 12000 - 750);
    layout.SplitterReleased();
    EXPECT_EQ(view.layout.tree.width, 12000 - 750);
}

TEST_F(LayoutTest, MovesWithoutAPressedSplitterDoNothing) {
    layout.Resized();
    layout.SplitterDragged(500);
    layout.SplitterReleased();
    EXPECT_FALSE(view.splitterBarShown);
    EXPECT_EQ(view.layout.tree.width, 3000);
}

} // namespace
