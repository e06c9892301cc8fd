// Rules: Finding colors
// The real window that finds colors, worked by keys and clicks.

#include "mainwindow/frmFind.h"
#include "platform/Utf16.h"
#include "tests/ui/ListFormTest.h"
#include "tests/ui/WindowPicture.h"

#include <algorithm>
#include <array>
#include <commctrl.h>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

constexpr ColorNumber kRowColor = 0x4080C0;

class RecordingFindEvents : public FindEvents {
public:
    void TextChanged(const std::string& text) override { lines.push_back("text " + text); }
    void LikeActiveColorChosen(bool isChosen) override {
        lines.emplace_back(isChosen ? "like" : "not like");
    }
    void RowSelected(int row) override { lines.push_back("row " + std::to_string(row)); }
    void RowChosen(int row) override { lines.push_back("go to " + std::to_string(row)); }
    void Ticked() override { ++ticks; }
    void FindClosing() override { lines.emplace_back("closing"); }
    [[nodiscard]] std::string CellText(int row, int column) const override {
        ++cellsAsked;
        return "cell " + std::to_string(row) + "," + std::to_string(column);
    }
    [[nodiscard]] ColorNumber ColorOfRow(int) const override { return kRowColor; }

    Lines lines;
    int ticks = 0;
    mutable int cellsAsked = 0;
};

class FindForm : public ListFormTest<frmFind, IDC_lvFind> {
protected:
    FindForm() {
        window.Attach(recorded);
        window.SetColumnCaptions({"Color", "Group", "Library", "Difference"});
        window.ShowModeless();
        PumpMessages();
    }

    void Type(const wchar_t* text) {
        for (; *text != L'\0'; ++text)
            SendMessageW(Inside(IDC_txtFind), WM_CHAR, *text, 1);
    }
    [[nodiscard]] int ColumnCount() const {
        return static_cast<int>(SendMessageW(ListView_GetHeader(List()), HDM_GETITEMCOUNT, 0, 0));
    }
    [[nodiscard]] int WidthOfColumns() const {
        int width = 0;
        for (int column = 0; column < ColumnCount(); ++column)
            width += ListView_GetColumnWidth(List(), column);
        return width;
    }

    RecordingFindEvents recorded;
};

TEST_F(FindForm, OpensInTheStateThatItWasGivenForThisOpening) {
    SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
    window.SetState(WindowState::Maximised);
    window.ShowModeless();
    EXPECT_NE(IsZoomed(window.Handle()), FALSE);
    ::ShowWindow(window.Handle(), SW_RESTORE);
    SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
    window.ShowModeless();
    EXPECT_EQ(IsZoomed(window.Handle()), FALSE);
}

TEST_F(FindForm, OpensWithTheFocusInTheTextAndAllOfItSelected) {
    EXPECT_EQ(GetFocus(), Inside(IDC_txtFind));
    Type(L"abc");
    Press(VK_TAB);
    window.ShowModeless();
    DWORD start = 9;
    DWORD end = 9;
    SendMessageW(Inside(IDC_txtFind), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(GetFocus(), Inside(IDC_txtFind));
    EXPECT_EQ(start, 0U);
    EXPECT_EQ(end, 3U);
}

TEST_F(FindForm, EachCharacterIsReported) {
    Type(L"ro");
    EXPECT_EQ(recorded.lines, (Lines{"text r", "text ro"}));
}

TEST_F(FindForm, TextAndRowsStayWhileTheWindowIsClosed) {
    Type(L"ro");
    window.ShowRows(2, 0);
    Press(VK_ESCAPE);
    EXPECT_EQ(recorded.lines.back(), "closing");
    EXPECT_EQ(IsWindowVisible(window.Handle()), FALSE);
    window.ShowModeless();
    EXPECT_NE(IsWindowVisible(window.Handle()), FALSE);
    EXPECT_EQ(TextOf(Inside(IDC_txtFind)), L"ro");
    EXPECT_EQ(ListView_GetItemCount(List()), 2);
}

TEST_F(FindForm, CloseBoxAndButtonCloseTheWindow) {
    SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(IsWindowVisible(window.Handle()), FALSE);
    window.ShowModeless();
    PressButton(IDC_cmdCloseFind);
    EXPECT_EQ(IsWindowVisible(window.Handle()), FALSE);
    EXPECT_EQ(recorded.lines, (Lines{"closing", "closing"}));
}

TEST_F(FindForm, MainWindowCanBeWorkedMeanwhile) {
    EXPECT_NE(IsWindowEnabled(form.Handle()), FALSE);
}

TEST_F(FindForm, EnterGoesToTheSelectedRowFromTheTextAndFromTheList) {
    window.ShowRows(3, 0);
    Press(VK_RETURN);
    Press(VK_DOWN);
    EXPECT_EQ(GetFocus(), List());
    EXPECT_EQ(SelectedRow(), 0) << "the way into the list is none in it";
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_EQ(recorded.lines, (Lines{"go to 0", "row 1", "go to 1"}));
}

TEST_F(FindForm, DoubleClickAndButtonGoToTheSelectedRow) {
    window.ShowRows(3, 2);
    DoubleClick(2);
    PressButton(IDC_cmdShow);
    DoubleClick(-1);
    EXPECT_EQ(recorded.lines, (Lines{"go to 2", "go to 2"}));
}

TEST_F(FindForm, NothingIsGoneToWithoutRowsOrWhileAQuestionIsOpen) {
    Press(VK_RETURN);
    EXPECT_EQ(IsWindowEnabled(Inside(IDC_cmdShow)), FALSE);
    window.ShowRows(3, 0);
    EXPECT_NE(IsWindowEnabled(Inside(IDC_cmdShow)), FALSE);
    EnableWindow(form.Handle(), FALSE);
    Press(VK_RETURN);
    DoubleClick(0);
    EnableWindow(form.Handle(), TRUE);
    EXPECT_EQ(recorded.lines, Lines{});
}

TEST_F(FindForm, KeysThatFindAreTheMainWindowsCommandsHereToo) {
    window.ShowRows(3, 0);
    std::array<BYTE, 256> keys{};
    Press(VK_F3);
    GetKeyboardState(keys.data());
    const std::array<BYTE, 256> before = keys;
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys.data());
    Press(VK_F3);
    keys[VK_SHIFT] = 0;
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys.data());
    Press('F');
    Press('S'); // a command of the main window that is none here
    SetKeyboardState(const_cast<BYTE*>(before.data()));
    EXPECT_EQ(events.commands,
              (std::vector<int>{IDM_mnuEditFindNext, IDM_mnuEditFindPrevious, IDM_mnuEditFind}));
}

TEST_F(FindForm, CheckBoxIsReportedAndBringsTheColumnOfDifferences) {
    PressButton(IDC_chkLikeActive);
    PressButton(IDC_chkLikeActive);
    EXPECT_EQ(recorded.lines, (Lines{"like", "not like"}));
    EXPECT_EQ(ColumnCount(), 3);
    window.ShowDifferences(true);
    window.ShowDifferences(true);
    ASSERT_EQ(ColumnCount(), 4);
    LVCOLUMNW column{};
    std::array<wchar_t, 32> caption{};
    column.mask = LVCF_FMT | LVCF_TEXT;
    column.pszText = caption.data();
    column.cchTextMax = static_cast<int>(caption.size());
    ListView_GetColumn(List(), 3, &column);
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_EQ(std::wstring(caption.data()), L"Difference");
    window.ShowDifferences(false);
    EXPECT_EQ(ColumnCount(), 3);
}

TEST_F(FindForm, HeaderOfTheDifferencesIsOnTheRightAlsoInAnotherLanguage) {
    window.ShowDifferences(true);
    window.SetColumnCaptions({"Farbe", "Gruppe", "Bibliothek", "Abstand"});
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    SendMessageW(ListView_GetHeader(List()), HDM_GETITEMW, 3, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(item.fmt & HDF_JUSTIFYMASK, HDF_RIGHT);
}

TEST_F(FindForm, RowsThatComeLeaveSelectionAndSightAlone) {
    window.ShowRows(1000, 0);
    window.SelectRow(700);
    const int top = ListView_GetTopIndex(List());
    window.AddRows(2000);
    EXPECT_EQ(ListView_GetItemCount(List()), 2000);
    EXPECT_EQ(SelectedRow(), 700);
    EXPECT_EQ(ListView_GetTopIndex(List()), top);
    EXPECT_EQ(recorded.lines, Lines{}) << "what the program does is not reported";
}

TEST_F(FindForm, RowsAreAskedForOnlyWhenTheyAreInSight) {
    window.ShowRows(1000000, 0);
    UpdateWindow(List());
    PumpMessages();
    EXPECT_GT(recorded.cellsAsked, 0);
    EXPECT_LT(recorded.cellsAsked, 2000);
    EXPECT_EQ(Cell(999999, 2), "cell 999999,3");
}

TEST_F(FindForm, EachRowShowsItsColor) {
    window.ShowRows(5, 0);
    UpdateWindow(List());
    PumpMessages();
    const WindowPicture picture = PictureOf(window.Handle());
    const auto swatch = static_cast<std::uint32_t>(
        RGB(GetBValue(kRowColor), GetGValue(kRowColor), GetRValue(kRowColor)));
    const auto pixels =
        std::count_if(picture.pixels.begin(), picture.pixels.end(),
                      [&](std::uint32_t pixel) { return (pixel & 0xFFFFFFU) == swatch; });
    EXPECT_GT(pixels, 5 * 10 * 10);
}

TEST_F(FindForm, TimerTicksAsLongAsItIsWanted) {
    window.TickEvery(10);
    EXPECT_TRUE(PumpUntil([&] { return recorded.ticks > 2; }));
    window.TickEvery(0);
    PumpMessages();
    const int before = recorded.ticks;
    Sleep(50); // five of its paces: that no tick comes can only be waited for
    PumpMessages();
    EXPECT_EQ(recorded.ticks, before);
}

TEST_F(FindForm, TabVisitsTextBoxCheckBoxListAndButtons) {
    window.ShowRows(2, 0);
    std::vector<int> order;
    for (int time = 0; time < 6; ++time) {
        order.push_back(GetDlgCtrlID(GetFocus()));
        Press(VK_TAB);
    }
    EXPECT_EQ(order, (std::vector<int>{IDC_txtFind, IDC_chkLikeActive, IDC_lvFind, IDC_cmdShow,
                                       IDC_cmdCloseFind, IDC_txtFind}));
}

TEST_F(FindForm, FocusGoesToTheTextWhenTheButtonThatHasItTurnsGrey) {
    window.ShowRows(2, 0);
    SetFocus(Inside(IDC_cmdShow));
    window.ShowRows(0, -1);
    EXPECT_EQ(GetFocus(), Inside(IDC_txtFind));
}

TEST_F(FindForm, ListGrowsWithTheWindowAndItsColumnsFillIt) {
    window.ShowDifferences(true);
    for (const int width : {700, 1000, 500}) {
        Resize(width, width);
        const RECT list = PlaceOf(IDC_lvFind);
        EXPECT_LE(WidthOfColumns(), WidthOf(list));
        EXPECT_GT(WidthOfColumns(), WidthOf(list) - 60);
        EXPECT_GT(list.bottom, PlaceOf(IDC_stbarFind).top - 30);
    }
}

TEST_F(FindForm, SmallestWindowHoldsAllItsFields) {
    Resize(10, 10);
    RECT area{};
    GetClientRect(window.Handle(), &area);
    for (const int id : {IDC_lblFind, IDC_txtFind, IDC_chkLikeActive, IDC_lblLikeActive, IDC_lvFind,
                         IDC_cmdShow, IDC_cmdCloseFind}) {
        const RECT place = PlaceOf(id);
        EXPECT_GT(WidthOf(place), 10) << id;
        EXPECT_GT(HeightOf(place), 10) << id;
        EXPECT_LE(place.right, area.right) << id;
        EXPECT_LE(place.bottom, area.bottom) << id;
    }
    EXPECT_LE(PlaceOf(IDC_txtFind).right, PlaceOf(IDC_cmdShow).left);
    EXPECT_LE(PlaceOf(IDC_lblLikeActive).right, PlaceOf(IDC_cmdCloseFind).left);
}

TEST_F(FindForm, ControlsHaveNamesForThoseWhoDoNotSeeThem) {
    EXPECT_EQ(TextOf(List()), L"Gefundene Farben");
    EXPECT_EQ(GetWindow(Inside(IDC_txtFind), GW_HWNDPREV), Inside(IDC_lblFind))
        << "a label names the control behind it";
}

} // namespace
