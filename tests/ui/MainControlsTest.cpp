// Rules: Layout, bars and views
#include "mainwindow/CommandTable.h"
#include "platform/Utf16.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/MessageCounter.h"

#include <array>

#include <map>

namespace {

struct Expected {
    const char* name;
    int id;
    const wchar_t* windowClass;
    const char* typeName;
};

constexpr Expected kControls[] = {
    {"tlbarMain", IDC_tlbarMain, TOOLBARCLASSNAMEW, "Toolbar"},
    {"tvColor", IDC_tvColor, WC_TREEVIEWW, "TreeView"},
    {"lvColor", IDC_lvColor, WC_LISTVIEWW, "ListView"},
    {"imgSplitter", IDC_imgSplitter, WC_STATICW, "Image"},
    {"picSplitter", IDC_picSplitter, WC_STATICW, "PictureBox"},
    {"fraShowColor", IDC_fraShowColor, WC_BUTTONW, "Frame"},
    {"lblActiveColor", IDC_lblActiveColor, WC_STATICW, "Label"},
    {"lblActiveColorName", IDC_lblActiveColorName, WC_STATICW, "Label"},
    {"lblActiveColorSmall", IDC_lblActiveColorSmall, WC_STATICW, "Label"},
    {"stbarMain", IDC_stbarMain, STATUSCLASSNAMEW, "StatusBar"},
    {"picSponsor", IDC_picSponsor, WC_STATICW, "PictureBox"},
    {"lblDrag", IDC_lblDrag, WC_STATICW, "Label"},
    {"lblRed", IDC_lblRed, WC_STATICW, "Label"},
    {"lblEmission", IDC_lblEmission, WC_STATICW, "Label"},
};

using MainControls = MainFormTest;

TEST_F(MainControls, WindowClassAndTitleAreTheProgramsOwn) {
    EXPECT_EQ(ClassOf(form.Handle()), L"frmMain");
    EXPECT_EQ(TextOf(form.Handle()), L"TNT4SWX");
    EXPECT_EQ(form.Name(), "frmMain");
}

TEST_F(MainControls, EachChildWindowCarriesItsNumber) {
    for (const Expected& expected : kControls) {
        ASSERT_NE(Child(expected.id), nullptr) << expected.name;
        EXPECT_STRCASEEQ(ToUtf8(ClassOf(Child(expected.id))).c_str(),
                         ToUtf8(expected.windowClass).c_str());
        ASSERT_NE(Control(expected.name), nullptr) << expected.name;
        EXPECT_EQ(Control(expected.name)->TypeName(), expected.typeName);
    }
    for (int index = 0; index < static_cast<int>(kColorValueCount); ++index) {
        EXPECT_STRCASEEQ(ToUtf8(ClassOf(Child(IDC_txtActiveColor + index))).c_str(), "Edit");
        EXPECT_EQ(ClassOf(Child(IDC_sldActiveColor + index)), TRACKBAR_CLASSW);
    }
}

TEST_F(MainControls, EveryMenuEntryAndControlArrayElementIsInTheCollection) {
    std::map<std::string, int> count;
    for (FormControl* control : form.Controls())
        ++count[control->Name()];
    for (const MenuRow& row : MenuRows()) {
        EXPECT_EQ(count[row.name], 1) << row.name;
        EXPECT_EQ(Control(row.name)->Property("Caption"), row.caption);
        EXPECT_EQ(Control(row.name)->TypeName(), "Menu");
    }
    EXPECT_EQ(count["txtActiveColor"], 9);
    EXPECT_EQ(count["sldActiveColor"], 9);
    for (const char* name : {"imlView", "imlViewSmall", "imlToolbarIcons", "timSponsor"})
        EXPECT_EQ(count[name], 1) << name;
}

TEST_F(MainControls, CaptionAndToolTipCanBeSetOnLabels) {
    Control("lblGreen")->SetProperty("Caption", "Green");
    Control("lblGreen")->SetProperty("ToolTipText", "Share of green");
    EXPECT_EQ(TextOf(Child(IDC_lblGreen)), L"Green");
    EXPECT_EQ(Control("lblGreen")->Property("ToolTipText"), "Share of green");
    EXPECT_THROW(Control("lblGreen")->SetProperty("Text", "x"), RuntimeError);
}

TEST_F(MainControls, ListsAndBarsHaveOnlyAToolTip) {
    for (const char* name : {"tvColor", "lvColor", "stbarMain"}) {
        Control(name)->SetProperty("ToolTipText", "tip");
        EXPECT_EQ(Control(name)->Property("ToolTipText"), "tip");
        EXPECT_THROW(static_cast<void>(Control(name)->Property("Caption")), RuntimeError);
    }
}

// To find it takes two looks at the window's properties for each of its messages.
TEST_F(MainControls, NoPartOfTheWindowHangsInThePlatformsChainOfProcedures) {
    const auto count = [](HWND part, LPARAM found) -> BOOL {
        if (GetPropW(part, L"CC32SubclassInfo") != nullptr)
            ++*reinterpret_cast<int*>(found);
        return TRUE;
    };
    int hanging = 0;
    EnumChildWindows(form.Handle(), count, reinterpret_cast<LPARAM>(&hanging));
    EXPECT_EQ(hanging, 0);
    const MessageCounter counter(Child(IDC_tvColor)); // does hang in it
    EnumChildWindows(form.Handle(), count, reinterpret_cast<LPARAM>(&hanging));
    EXPECT_EQ(hanging, 1);
}

TEST_F(MainControls, WindowHasItsIconsWhenItIsSeen) {
    const auto icon = [this](WPARAM kind) {
        return SendMessageW(form.Handle(), WM_GETICON, kind, 0);
    };
    EXPECT_EQ(icon(ICON_BIG), 0);
    form.ShowWindow();
    EXPECT_NE(icon(ICON_BIG), 0);
    EXPECT_NE(icon(ICON_SMALL), 0);
}

TEST_F(MainControls, LongerLabelMovesItsBox) {
    events.layout.SetHugeFrame(true);
    RECT before{};
    RECT after{};
    GetWindowRect(Child(IDC_txtActiveColor), &before);
    Control("lblRed")->SetProperty("Caption", "Ein sehr langer Name für Rot");
    PumpMessages();
    GetWindowRect(Child(IDC_txtActiveColor), &after);
    EXPECT_GT(after.left, before.left + 20);
}

TEST_F(MainControls, VeryLongLabelLeavesBoxAndSliderInTheWindow) {
    form.ShowWindow();
    events.layout.SetHugeFrame(true);
    Control("lblRed")->SetProperty("Caption", std::string(255, 'W'));
    PumpMessages();
    RECT frame{};
    GetWindowRect(Child(IDC_fraShowColor), &frame);
    for (int index = 0; index < 9; ++index)
        for (const int id : {IDC_txtActiveColor + index, IDC_sldActiveColor + index}) {
            RECT place{};
            GetWindowRect(Child(id), &place);
            EXPECT_LE(place.right, frame.right) << id;
            EXPECT_GT(WidthOf(place), 20) << id;
        }
}

TEST_F(MainControls, TabKeyGoesThroughTreeListAndEachBoxFollowedByItsSlider) {
    form.ShowWindow();
    events.layout.SetHugeFrame(true);
    std::vector<int> expected = {IDC_tvColor, IDC_lvColor};
    for (int index = 0; index < 9; ++index) {
        expected.push_back(IDC_txtActiveColor + index);
        expected.push_back(IDC_sldActiveColor + index);
    }
    std::vector<int> found;
    HWND control = nullptr;
    for (std::size_t step = 0; step < expected.size(); ++step) {
        control = GetNextDlgTabItem(form.Handle(), control, FALSE);
        found.push_back(GetDlgCtrlID(control));
    }
    EXPECT_EQ(found, expected);
}

TEST_F(MainControls, LabelStandsDirectlyBeforeItsBoxAndNamesTheSlider) {
    events.layout.SetHugeFrame(true);
    for (int index = 0; index < 9; ++index) {
        const HWND before = GetWindow(Child(IDC_txtActiveColor + index), GW_HWNDPREV);
        EXPECT_EQ(GetDlgCtrlID(before), IDC_lblRed + index);
        EXPECT_EQ(TextOf(Child(IDC_sldActiveColor + index)), TextOf(before));
    }
}

TEST_F(MainControls, SplitterDragMovesThePanes) {
    const HWND splitter = Child(IDC_imgSplitter);
    RECT before{};
    RECT after{};
    GetWindowRect(Child(IDC_tvColor), &before);
    SendMessageW(splitter, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 10));
    SendMessageW(splitter, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(61, 10));
    EXPECT_NE(GetWindowLongPtrW(Child(IDC_picSplitter), GWL_STYLE) & WS_VISIBLE, 0);
    SendMessageW(splitter, WM_LBUTTONUP, 0, MAKELPARAM(61, 10));
    GetWindowRect(Child(IDC_tvColor), &after);
    EXPECT_EQ(WidthOf(after), WidthOf(before) + 61);
    EXPECT_EQ(GetWindowLongPtrW(Child(IDC_picSplitter), GWL_STYLE) & WS_VISIBLE, 0);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"splitter down", "splitter up"}));
}

TEST_F(MainControls, SplitterThatLosesTheMouseEndsItsDragWhereTheBarStands) {
    const HWND splitter = Child(IDC_imgSplitter);
    RECT before{};
    RECT after{};
    GetWindowRect(Child(IDC_tvColor), &before);
    SendMessageW(splitter, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 10));
    SendMessageW(splitter, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(41, 10));
    SetCapture(Child(IDC_lvColor));
    EXPECT_EQ(events.lines, (std::vector<std::string>{"splitter down", "splitter up"}));
    EXPECT_EQ(GetWindowLongPtrW(Child(IDC_picSplitter), GWL_STYLE) & WS_VISIBLE, 0);
    SendMessageW(splitter, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(91, 10));
    SendMessageW(splitter, WM_LBUTTONUP, 0, MAKELPARAM(91, 10));
    ReleaseCapture();
    GetWindowRect(Child(IDC_tvColor), &after);
    EXPECT_EQ(WidthOf(after), WidthOf(before) + 41);
    EXPECT_EQ(events.lines.size(), 2U) << "once";
}

TEST_F(MainControls, HourGlassStaysWhenThePointerMoves) {
    form.ShowWindow();
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    const HCURSOR hourGlass = LoadCursorW(nullptr, IDC_WAIT);
    const auto cursorAfterMoveOver = [&](HWND window) {
        SetCursor(arrow);
        SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    SetCursor(arrow);
    form.SetWaiting(true);
    EXPECT_EQ(GetCursor(), hourGlass) << "at once";
    for (const int id : {IDC_tvColor, IDC_lvColor, IDC_tlbarMain, IDC_stbarMain})
        EXPECT_EQ(cursorAfterMoveOver(Child(id)), hourGlass) << id;
    EXPECT_EQ(cursorAfterMoveOver(form.Handle()), hourGlass);
    EnableWindow(form.Handle(), FALSE); // a question is open
    EXPECT_EQ(cursorAfterMoveOver(form.Handle()), arrow);
    EnableWindow(form.Handle(), TRUE);
    form.SetWaiting(false);
    EXPECT_EQ(GetCursor(), arrow);
    EXPECT_EQ(cursorAfterMoveOver(Child(IDC_tvColor)), arrow);
}

TEST_F(MainControls, EscapeIsReportedAndClosesNothing) {
    form.ShowWindow();
    MSG escape{form.Handle(), WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    EXPECT_TRUE(form.TranslateKeys(escape));
    EXPECT_EQ(events.lines, std::vector<std::string>{"escape"});
    EXPECT_NE(IsWindowVisible(form.Handle()), FALSE);
}

TEST_F(MainControls, StatusPanelShowsItsText) {
    view.bars.SetInfoPanelText("Okay setzen in SolidWorks");
    std::array<wchar_t, 64> text{};
    SendMessageW(Child(IDC_stbarMain), SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text.data()));
    EXPECT_STREQ(text.data(), L"Okay setzen in SolidWorks");
}

TEST_F(MainControls, HiddenStatusBarTakesNoHeight) {
    EXPECT_GT(view.layout.Metrics().statusBarHeight, 100);
    view.bars.SetStatusBarVisible(false);
    EXPECT_EQ(view.layout.Metrics().statusBarHeight, 0);
}

TEST_F(MainControls, FrameAndSmallSwatchTakeTurns) {
    const auto shown = [this](int id) {
        return (GetWindowLongPtrW(Child(id), GWL_STYLE) & WS_VISIBLE) != 0;
    };
    EXPECT_FALSE(shown(IDC_fraShowColor));
    EXPECT_TRUE(shown(IDC_lblActiveColorSmall));
    events.layout.SetHugeFrame(true);
    EXPECT_TRUE(shown(IDC_fraShowColor));
    EXPECT_FALSE(shown(IDC_lblActiveColorSmall));
}

TEST_F(MainControls, WithoutAPictureTheBannerIsHidden) {
    form.SetBanner(1);
    EXPECT_EQ(GetWindowLongPtrW(Child(IDC_picSponsor), GWL_STYLE) & WS_VISIBLE, 0);
}

} // namespace
