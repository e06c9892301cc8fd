// Rules: Layout, bars and views
#include "platform/DpiScale.h"
#include "tests/ui/MainFormTest.h"

#include <cmath>

namespace {

TEST(DpiScaleRoundTrip, PixelsStayTheSameAtEveryResolution) {
    for (const unsigned dpi : {96U, 120U, 144U, 168U, 192U, 240U, 288U, 480U}) {
        const DpiScale scale(dpi);
        for (int pixels = -4000; pixels <= 8000; ++pixels)
            ASSERT_EQ(scale.ToPixels(scale.ToTwips(pixels)), pixels) << dpi;
    }
}

TEST(DpiScaleRoundTrip, TwipsRoundedToWholeNumbersNameTheSamePixels) {
    for (const unsigned dpi : {96U, 120U, 144U, 168U, 192U}) {
        const DpiScale scale(dpi);
        for (int pixels = -4000; pixels <= 8000; ++pixels)
            ASSERT_EQ(scale.ToPixels(std::nearbyint(scale.ToTwips(pixels))), pixels) << dpi;
    }
}

class MainScale : public MainFormTest {
protected:
    MainScale() { form.Move({600, 600, 9000, 6000}); } // twice as large still fits the screen

    void ChangeResolution(int dpi) {
        RECT bounds{};
        GetWindowRect(form.Handle(), &bounds);
        bounds.right = bounds.left + MulDiv(WidthOf(bounds), dpi, form.Scale().Dpi());
        bounds.bottom = bounds.top + MulDiv(HeightOf(bounds), dpi, form.Scale().Dpi());
        SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&bounds));
    }
    [[nodiscard]] SIZE SizeOf(int id) const {
        RECT place{};
        GetWindowRect(Child(id), &place);
        return {WidthOf(place), HeightOf(place)};
    }
    [[nodiscard]] int ToolbarIconSize() const {
        int width = 0;
        int height = 0;
        ImageList_GetIconSize(
            reinterpret_cast<HIMAGELIST>(SendMessageW(Child(IDC_tlbarMain), TB_GETIMAGELIST, 0, 0)),
            &width, &height);
        return width;
    }
};

TEST_F(MainScale, NewResolutionScalesFontsIconsColumnsAndControls) {
    const int dpi = form.Scale().Dpi();
    view.list.AddColumns({{"Name", "Name", 1500}});
    events.layout.SetHugeFrame(true);
    const SIZE box = SizeOf(IDC_txtActiveColor);
    const int icon = ToolbarIconSize();
    RECT before{};
    GetWindowRect(form.Handle(), &before);
    ChangeResolution(2 * dpi);
    EXPECT_EQ(form.Scale().Dpi(), 2 * dpi);
    EXPECT_EQ(ToolbarIconSize(), 2 * icon);
    EXPECT_EQ(SizeOf(IDC_txtActiveColor).cx, 2 * box.cx);
    EXPECT_GT(SizeOf(IDC_txtActiveColor).cy, box.cy + box.cy / 2);
    EXPECT_EQ(SendMessageW(Child(IDC_lvColor), LVM_GETCOLUMNWIDTH, 0, 0),
              form.Scale().ToPixels(1500));
    RECT after{};
    GetWindowRect(form.Handle(), &after);
    EXPECT_EQ(WidthOf(after), 2 * WidthOf(before));
    EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageW(Child(IDC_txtActiveColor), WM_GETFONT, 0, 0)),
              form.Font());
}

TEST_F(MainScale, ColumnsTakeTheNewResolutionWhicheverViewIsShown) {
    view.list.AddColumns({{"Name", "Name", 1500}, {"R", "red", 600}});
    for (const ListViewMode mode : {ListViewMode::LargeIcons, ListViewMode::SmallIcons,
                                    ListViewMode::List, ListViewMode::Details}) {
        const int dpi = form.Scale().Dpi();
        view.list.SetListViewMode(mode);
        ChangeResolution(dpi == 96 ? 192 : 96);
        view.list.SetListViewMode(ListViewMode::Details);
        for (const auto& [column, width] : {std::pair(0, 1500.0F), std::pair(1, 600.0F)})
            EXPECT_EQ(SendMessageW(Child(IDC_lvColor), LVM_GETCOLUMNWIDTH,
                                   static_cast<WPARAM>(column), 0),
                      form.Scale().ToPixels(width))
                << static_cast<int>(mode);
    }
}

TEST_F(MainScale, WayThereAndBackRestoresTheLayout) {
    const int dpi = form.Scale().Dpi();
    const SIZE list = SizeOf(IDC_lvColor);
    const SIZE tree = SizeOf(IDC_tvColor);
    ChangeResolution(2 * dpi);
    ChangeResolution(dpi);
    EXPECT_EQ(SizeOf(IDC_lvColor).cx, list.cx);
    EXPECT_EQ(SizeOf(IDC_lvColor).cy, list.cy);
    EXPECT_EQ(SizeOf(IDC_tvColor).cx, tree.cx);
}

TEST_F(MainScale, BoundsDoNotDriftWhenTheyAreRestored) {
    RECT before{};
    RECT after{};
    SetWindowPos(form.Handle(), nullptr, 37, 53, 711, 517, SWP_NOZORDER);
    GetWindowRect(form.Handle(), &before);
    for (int time = 0; time < 5; ++time)
        form.Move(form.Bounds());
    GetWindowRect(form.Handle(), &after);
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(MainScale, StateOfAHiddenWindowIsTakenWhenItIsShown) {
    form.SetState(WindowState::Maximised);
    EXPECT_EQ(form.State(), WindowState::Maximised);
    EXPECT_EQ(view.layout.Metrics().state, WindowState::Normal);
    EXPECT_EQ(IsWindowVisible(form.Handle()), FALSE);
    form.ShowWindow();
    EXPECT_NE(IsZoomed(form.Handle()), FALSE);
    EXPECT_EQ(form.State(), WindowState::Maximised);
    EXPECT_EQ(view.layout.Metrics().state, WindowState::Maximised);
}

TEST_F(MainScale, MaximisedWindowKeepsThePanesOfItsNormalSize) {
    form.ShowWindow();
    const SIZE list = SizeOf(IDC_lvColor);
    form.SetState(WindowState::Maximised);
    EXPECT_EQ(SizeOf(IDC_lvColor).cx, list.cx);
    form.SetState(WindowState::Normal);
    EXPECT_EQ(SizeOf(IDC_lvColor).cx, list.cx);
}

TEST_F(MainScale, WhatWasSwitchedWhileMaximisedIsLaidOutWhenTheWindowIsRestored) {
    form.ShowWindow();
    const SIZE list = SizeOf(IDC_lvColor);
    form.SetState(WindowState::Maximised);
    view.bars.SetToolbarVisible(false);
    view.bars.ArrangeBars();
    form.SetState(WindowState::Normal);
    PumpMessages();
    EXPECT_GT(SizeOf(IDC_lvColor).cy, list.cy);
}

TEST_F(MainScale, PanesTakeANewResolutionAlsoWhileMaximised) {
    form.ShowWindow();
    form.SetState(WindowState::Maximised);
    const SIZE list = SizeOf(IDC_lvColor);
    const SIZE tree = SizeOf(IDC_tvColor);
    SendMessageW(form.Handle(), WM_DPICHANGED,
                 MAKEWPARAM(2 * form.Scale().Dpi(), 2 * form.Scale().Dpi()), 0);
    EXPECT_NEAR(SizeOf(IDC_lvColor).cx, 2 * list.cx, 1);
    EXPECT_NEAR(SizeOf(IDC_lvColor).cy, 2 * list.cy, 1);
    EXPECT_NEAR(SizeOf(IDC_tvColor).cx, 2 * tree.cx, 1);
}

TEST_F(MainScale, TopmostComesAndGoes) {
    form.ShowWindow();
    form.SetTopmost(true);
    EXPECT_NE(GetWindowLongPtrW(form.Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    form.SetTopmost(false);
    EXPECT_EQ(GetWindowLongPtrW(form.Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(MainScale, ListReachesTheRightBorderAndNoFurther) {
    form.ShowWindow();
    RECT inner{};
    RECT list{};
    GetClientRect(form.Handle(), &inner);
    MapWindowPoints(form.Handle(), nullptr, reinterpret_cast<POINT*>(&inner), 2);
    GetWindowRect(Child(IDC_lvColor), &list);
    const int border = GetSystemMetrics(SM_CXBORDER);
    const float outer = form.Scale().ToTwips(WidthOf(inner) + 2 * border);
    EXPECT_EQ(WidthOf(list), form.Scale().ToPixels(outer - 3000 - 140));
    EXPECT_LE(list.right, inner.right);
}

TEST_F(MainScale, LowWindowKeepsPanesOfThreeHundredTwips) {
    events.layout.SetHugeFrame(true);
    form.Move({600, 600, 5000, 100});
    EXPECT_EQ(SizeOf(IDC_lvColor).cy, form.Scale().ToPixels(300));
}

TEST_F(MainScale, WindowMayBeAsSmallAsTheSystemAllowsAndIsLaidOutAgainAfterwards) {
    for (const bool hugeFrame : {false, true}) {
        events.layout.SetHugeFrame(hugeFrame);
        events.layout.Resized();
        RECT before{};
        GetWindowRect(form.Handle(), &before);
        const SIZE list = SizeOf(IDC_lvColor);
        SetWindowPos(form.Handle(), nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
        PumpMessages();
        RECT smallest{};
        GetWindowRect(form.Handle(), &smallest);
        EXPECT_LE(WidthOf(smallest), GetSystemMetrics(SM_CXMINTRACK));
        EXPECT_LT(HeightOf(smallest), form.Scale().FromDesign(100));
        EXPECT_GE(SizeOf(IDC_lvColor).cx, 0);
        SetWindowPos(form.Handle(), nullptr, 0, 0, WidthOf(before), HeightOf(before),
                     SWP_NOMOVE | SWP_NOZORDER);
        PumpMessages();
        EXPECT_EQ(SizeOf(IDC_lvColor).cy, list.cy);
    }
}

TEST(IconLists, ListBeforeANewSizeStaysGoodForTheControlsThatStillHaveIt) {
    IconList icons("imlViewSmall", {"Palette", "Colbrush"});
    icons.Fit(16);
    const HIMAGELIST before = icons.Handle();
    icons.Fit(32);
    EXPECT_NE(icons.Handle(), before);
    EXPECT_EQ(ImageList_GetImageCount(before), 2);
}

TEST_F(MainScale, RepaintIsReported) {
    form.ShowWindow();
    PumpMessages();
    events.repainted = 0;
    RedrawWindow(form.Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_GE(events.repainted, 1);
}

} // namespace
