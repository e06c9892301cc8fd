// Rules: Tree and list views
#include "platform/Utf16.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/MessageCounter.h"

#include <array>
#include <set>
#include <utility>

namespace {

class MainList : public MainFormTest {
protected:
    MainList() {
        const float width = view.list.ListWidth();
        view.list.AddColumns(
            {{"Name", "Name", width * 0.24F}, {"R", "red", 600}, {"G", "green", 600}});
        view.list.SetListViewMode(ListViewMode::Details);
        view.list.RowsChanged(10);
    }

    [[nodiscard]] HWND List() const { return Child(IDC_lvColor); }
    [[nodiscard]] HWND LabelBox() const {
        return reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETEDITCONTROL, 0, 0));
    }
    [[nodiscard]] int Selected() const {
        return static_cast<int>(
            SendMessageW(List(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }
    [[nodiscard]] std::string Cell(int row, int subItem) const {
        std::array<wchar_t, 64> text{};
        LVITEMW item{};
        item.iSubItem = subItem;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        SendMessageW(List(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        return ToUtf8(text.data());
    }
    [[nodiscard]] POINT PlaceOf(int row) const {
        RECT place{LVIR_LABEL, 0, 0, 0};
        SendMessageW(List(), LVM_GETITEMRECT, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&place));
        return {place.left + 4, (place.top + place.bottom) / 2};
    }
};

TEST_F(MainList, AsksForItsTextsByRowAndColumn) {
    EXPECT_EQ(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0), 10);
    EXPECT_EQ(Cell(0, 0), "cell 0,1");
    EXPECT_EQ(Cell(7, 2), "cell 7,3");
}

TEST_F(MainList, ColumnsHaveTheWidthAndCaptionTheyWereMadeWith) {
    std::array<wchar_t, 16> text{};
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = text.data();
    column.cchTextMax = static_cast<int>(text.size());
    SendMessageW(List(), LVM_GETCOLUMNW, 1, reinterpret_cast<LPARAM>(&column));
    EXPECT_STREQ(text.data(), L"R");
    EXPECT_EQ(column.cx, form.Scale().ToPixels(600));
}

TEST_F(MainList, WidthIsKnownBeforeTheWindowIsShown) {
    EXPECT_GT(view.list.ListWidth(), 5000);
}

TEST_F(MainList, SelectionByTheProgramIsNotReported) {
    view.list.SelectRow(4);
    EXPECT_EQ(Selected(), 4);
    view.list.RowsChanged(5);
    EXPECT_EQ(Selected(), -1);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainList, SelectionByKeyboardIsReported) {
    view.list.SelectRow(4);
    SendMessageW(List(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(events.lines, std::vector<std::string>{"row 5"});
    EXPECT_EQ(Selected(), 5);
}

TEST_F(MainList, ClickIsReportedOnceAlsoOnTheSelectedRow) {
    form.ShowWindow();
    Click(List(), PlaceOf(2));
    EXPECT_EQ(events.lines, std::vector<std::string>{"row 2"});
    Click(List(), PlaceOf(2));
    EXPECT_EQ(events.lines, (std::vector<std::string>{"row 2", "row 2"}));
}

TEST_F(MainList, ClickBesideTheRowsKeepsTheSelection) {
    form.ShowWindow();
    view.list.SelectRow(2);
    RECT area{};
    GetClientRect(List(), &area);
    Click(List(), {area.right - 4, area.bottom - 4});
    EXPECT_EQ(Selected(), 2);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainList, DoubleClickDoesNothingAndKeepsTheSelection) {
    form.ShowWindow();
    view.list.SelectRow(2);
    RECT area{};
    GetClientRect(List(), &area);
    const POINT beside{area.right - 4, area.bottom - 4};
    for (const auto& [at, keys] :
         {std::pair{PlaceOf(2), 0}, std::pair{beside, 0}, std::pair{PlaceOf(2), MK_CONTROL}}) {
        Click(List(), at);
        SendMessageW(List(), WM_LBUTTONDBLCLK, static_cast<WPARAM>(MK_LBUTTON | keys),
                     MAKELPARAM(at.x, at.y));
        SendMessageW(List(), WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        PumpMessages();
        EXPECT_EQ(Selected(), 2);
        EXPECT_EQ(LabelBox(), nullptr);
    }
    EXPECT_TRUE(events.commands.empty());
}

TEST_F(MainList, RightButtonBesideTheRowsOpensTheMenuAndKeepsTheSelection) {
    form.ShowWindow();
    view.list.SelectRow(2);
    RECT area{};
    GetClientRect(List(), &area);
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_UP, 0);
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(List(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(area.right - 4, area.bottom - 4));
    PumpMessages();
    EXPECT_EQ(Selected(), 2);
    EXPECT_TRUE(events.lines.empty());
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorUpdateColor});
}

TEST_F(MainList, RightButtonSelectsTheRowAndOpensTheColorMenu) {
    form.ShowWindow();
    view.list.SelectRow(0);
    const POINT place = PlaceOf(3);
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_UP, 0);
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(List(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(place.x, place.y));
    PumpMessages();
    EXPECT_EQ(events.lines, std::vector<std::string>{"row 3"});
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorUpdateColor});
}

TEST_F(MainList, F2AsksForTheEdit) {
    SendMessageW(List(), WM_KEYDOWN, VK_F2, 0);
    EXPECT_EQ(events.lines, std::vector<std::string>{"row edit"});
}

TEST_F(MainList, EditedLabelIsReportedAlsoWhenItIsEmpty) {
    form.ShowWindow();
    view.list.SelectRow(2);
    for (const wchar_t* text : {L"Grün", L""}) {
        view.list.EditRowLabel(2);
        const auto edit = reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETEDITCONTROL, 0, 0));
        ASSERT_NE(edit, nullptr);
        SetWindowTextW(edit, text);
        SendMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
        PumpMessages();
    }
    EXPECT_EQ(events.lines, (std::vector<std::string>{"row label 2=Grün", "row label 2="}));
}

TEST_F(MainList, EmptiedLabelThatIsGivenUpIsNoRename) {
    form.ShowWindow();
    view.list.SelectRow(2);
    view.list.EditRowLabel(2);
    SetWindowTextW(LabelBox(), L"");
    SendMessageW(LabelBox(), WM_KEYDOWN, VK_ESCAPE, 0);
    view.list.EditRowLabel(2);
    SetWindowTextW(LabelBox(), L"");
    view.list.RowsChanged(10); // the program ends the edit
    PumpMessages();
    EXPECT_EQ(LabelBox(), nullptr);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainList, LongNameIsEditedAsAWhole) {
    form.ShowWindow();
    events.longCell = std::string(700, 'n');
    view.list.SelectRow(2);
    view.list.EditRowLabel(2);
    EXPECT_EQ(ToUtf8(TextOf(LabelBox())), events.longCell);
    SetWindowTextW(LabelBox(), std::wstring(600, L'm').c_str());
    SendMessageW(LabelBox(), WM_KEYDOWN, VK_RETURN, 0);
    PumpMessages();
    EXPECT_EQ(events.lines, std::vector<std::string>{"row label 2=" + std::string(600, 'm')});
}

TEST_F(MainList, EditThatIsOpenWhenACommandComesIsReportedWithItsText) {
    form.ShowWindow();
    view.list.SelectRow(2);
    view.list.EditRowLabel(2);
    SetWindowTextW(LabelBox(), L"y");
    view.list.FinishLabelEdit();
    EXPECT_EQ(events.lines, std::vector<std::string>{"row label 2=y"});
    EXPECT_EQ(LabelBox(), nullptr);
}

// Some platforms tell the end of one edit twice.
TEST_F(MainList, EndOfAnEditThatIsToldAgainRenamesNothing) {
    std::wstring text = L"again";
    NMLVDISPINFOW end{};
    end.hdr = {List(), IDC_lvColor, LVN_ENDLABELEDITW};
    end.item.iItem = 2;
    for (wchar_t* told : {text.data(), static_cast<wchar_t*>(nullptr)}) {
        end.item.pszText = told;
        SendMessageW(form.Handle(), WM_NOTIFY, IDC_lvColor, reinterpret_cast<LPARAM>(&end));
    }
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainList, SecondClickOnTheSelectedNameStartsItsEdit) {
    form.ShowWindow();
    SetFocus(List());
    Click(List(), PlaceOf(2));
    EXPECT_FALSE(PumpUntil([&] { return LabelBox() != nullptr; }, 2 * LongestDoubleClick()));
    Click(List(), PlaceOf(2));
    EXPECT_TRUE(PumpUntil([&] { return LabelBox() != nullptr; }));
}

TEST_F(MainList, RefusedEditDoesNotStart) {
    form.ShowWindow();
    events.mayEdit = false;
    view.list.EditRowLabel(2);
    EXPECT_EQ(reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETEDITCONTROL, 0, 0)), nullptr);
}

TEST_F(MainList, ColumnClickCountsFromOne) {
    NMLISTVIEW click{};
    click.hdr = {List(), IDC_lvColor, static_cast<UINT>(LVN_COLUMNCLICK)};
    click.iItem = -1;
    click.iSubItem = 1;
    SendMessageW(form.Handle(), WM_NOTIFY, IDC_lvColor, reinterpret_cast<LPARAM>(&click));
    EXPECT_EQ(events.lines, std::vector<std::string>{"column 2"});
}

TEST_F(MainList, HeaderMarksTheSortedColumnAndItsDirection) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETHEADER, 0, 0));
    const auto mark = [header](WPARAM column) {
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        SendMessageW(header, HDM_GETITEMW, column, reinterpret_cast<LPARAM>(&item));
        return item.fmt & (HDF_SORTUP | HDF_SORTDOWN);
    };
    for (WPARAM column = 0; column < 3; ++column)
        EXPECT_EQ(mark(column), 0);
    view.list.ShowSortOrder(1, true);
    EXPECT_EQ(mark(0), HDF_SORTDOWN);
    view.list.ShowSortOrder(3, false);
    EXPECT_EQ(mark(0), 0);
    EXPECT_EQ(mark(2), HDF_SORTUP);
}

TEST_F(MainList, TypedLettersFindARow) {
    view.list.SelectRow(0);
    SendMessageW(List(), WM_CHAR, 'x', 1);
    EXPECT_EQ(Selected(), 3);
    EXPECT_EQ(events.lines, std::vector<std::string>{"row 3"});
}

TEST_F(MainList, FourModesChangeOnlyThePresentation) {
    view.list.SelectRow(4);
    constexpr LONG_PTR kStyles[] = {LVS_ICON, LVS_SMALLICON, LVS_LIST, LVS_REPORT};
    for (int mode = 0; mode < 4; ++mode) {
        view.list.SetListViewMode(static_cast<ListViewMode>(mode));
        EXPECT_EQ(GetWindowLongPtrW(List(), GWL_STYLE) & LVS_TYPEMASK, kStyles[mode]);
        EXPECT_EQ(Selected(), 4);
        EXPECT_EQ(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0), 10);
    }
}

TEST_F(MainList, EveryRowHasAPlaceOfItsOwnInTheIconViewsAlsoAfterAnotherGroupIsShown) {
    form.ShowWindow();
    for (const ListViewMode mode : {ListViewMode::LargeIcons, ListViewMode::SmallIcons}) {
        view.list.RowsChanged(3);
        view.list.SetListViewMode(mode);
        view.list.RowsChanged(300);
        std::set<std::pair<LONG, LONG>> places;
        for (WPARAM row = 0; row < 300; ++row) {
            POINT place{};
            SendMessageW(List(), LVM_GETITEMPOSITION, row, reinterpret_cast<LPARAM>(&place));
            places.emplace(place.x, place.y);
        }
        EXPECT_EQ(places.size(), 300U) << static_cast<int>(mode);
    }
}

TEST_F(MainList, SelectedRowStaysSelectedWhenTheViewChangesAndNobodyHearsOfIt) {
    form.ShowWindow();
    view.list.RowsChanged(500);
    view.list.SelectRow(450);
    for (const ListViewMode mode : {ListViewMode::LargeIcons, ListViewMode::SmallIcons,
                                    ListViewMode::List, ListViewMode::Details}) {
        view.list.SetListViewMode(mode);
        EXPECT_EQ(Selected(), 450) << static_cast<int>(mode);
        EXPECT_EQ(SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0), 500);
    }
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainList, WholeTextIsFoundOnlyWhereARowHasJustThat) {
    events.longCell = "Gold";
    LVFINDINFOW search{};
    search.flags = LVFI_STRING;
    search.psz = L"gold";
    const auto find = [&] {
        return SendMessageW(List(), LVM_FINDITEMW, static_cast<WPARAM>(-1),
                            reinterpret_cast<LPARAM>(&search));
    };
    EXPECT_EQ(find(), 0);
    search.psz = L"gol";
    EXPECT_EQ(find(), -1);
    search.flags |= LVFI_PARTIAL;
    search.psz = L"x"; // what the fake knows the start of
    EXPECT_EQ(find(), 3);
}

// With 100,000 rows the list asks for the texts that are seen, and for no others.
class BigList : public MainList {
protected:
    BigList() {
        form.ShowWindow();
        view.list.RowsChanged(kRows);
        view.list.SelectRow(0);
        CellsAskedBy([] {});
    }

    // From the work to the painted list.
    template <typename Work>
    int CellsAskedBy(const Work& work) {
        events.cellsAsked = 0;
        work();
        PumpMessages();
        UpdateWindow(List());
        return events.cellsAsked;
    }

    static constexpr int kRows = 100000;
    static constexpr int kFewCells = 2000;
};

TEST_F(BigList, EachOfTheFourModesAsksOnlyForTheTextsThatAreSeen) {
    for (const ListViewMode mode : {ListViewMode::LargeIcons, ListViewMode::SmallIcons,
                                    ListViewMode::List, ListViewMode::Details}) {
        EXPECT_LT(CellsAskedBy([&] { view.list.SetListViewMode(mode); }), kFewCells)
            << static_cast<int>(mode);
        EXPECT_LT(CellsAskedBy([&] { view.list.EnsureRowVisible(kRows - 1); }), kFewCells)
            << static_cast<int>(mode);
        EXPECT_LT(CellsAskedBy([&] { view.list.EnsureRowVisible(0); }), kFewCells)
            << static_cast<int>(mode);
    }
}

TEST_F(BigList, ScrollingByAPageAsksOnlyForTheTextsThatAreSeen) {
    for (int page = 0; page < 5; ++page) {
        const int asked = CellsAskedBy([&] { SendMessageW(List(), WM_VSCROLL, SB_PAGEDOWN, 0); });
        EXPECT_GT(asked, 0);
        EXPECT_LT(asked, kFewCells);
    }
    EXPECT_GT(SendMessageW(List(), LVM_GETTOPINDEX, 0, 0), 0);
}

TEST_F(BigList, TypedLetterIsOneSearchInTheLibraryAndNoneInTheRows) {
    const int asked = CellsAskedBy([&] { SendMessageW(List(), WM_CHAR, 'x', 1); });
    EXPECT_EQ(events.searches, 1);
    EXPECT_EQ(Selected(), 3);
    EXPECT_LT(asked, kFewCells);
}

TEST_F(BigList, LastRowIsRenamedWithoutALookAtTheOthers) {
    view.list.SelectRow(kRows - 1);
    view.list.EnsureRowVisible(kRows - 1);
    const int asked = CellsAskedBy([&] {
        view.list.EditRowLabel(kRows - 1);
        ASSERT_NE(LabelBox(), nullptr);
        SetWindowTextW(LabelBox(), L"last");
        SendMessageW(LabelBox(), WM_KEYDOWN, VK_RETURN, 0);
    });
    EXPECT_EQ(events.lines, std::vector<std::string>{"row label 99999=last"});
    EXPECT_LT(asked, kFewCells);
}

TEST_F(MainList, EveryModeHasThePictureOfARow) {
    for (int mode = 0; mode < 4; ++mode) {
        view.list.SetListViewMode(static_cast<ListViewMode>(mode));
        LVITEMW item{};
        item.mask = LVIF_IMAGE;
        SendMessageW(List(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        const auto images = reinterpret_cast<HIMAGELIST>(
            SendMessageW(List(), LVM_GETIMAGELIST, mode == 0 ? LVSIL_NORMAL : LVSIL_SMALL, 0));
        EXPECT_GE(item.iImage, 0);
        EXPECT_LT(item.iImage, ImageList_GetImageCount(images)) << mode;
    }
}

TEST_F(MainList, ColumnsAreArrangedOnceForAllOfThem) {
    const auto timesArrangedFor = [this](std::size_t columns) {
        const MessageCounter counter(
            reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETHEADER, 0, 0)));
        view.list.AddColumns(std::vector<ListColumn>(columns, {"N", "one more", 300}));
        return counter.Count(WM_WINDOWPOSCHANGING);
    };
    EXPECT_EQ(timesArrangedFor(1), timesArrangedFor(8));
}

// Showing a group as the program does, until it is painted.
TEST_F(MainList, RowsOfAnyNumberAreShownWithTheSameMessagesAndTextsOfTheVisibleRowsAlone) {
    form.ShowWindow();
    const auto messagesFor = [this](int rows) {
        PumpMessages();
        events.cellsAsked = 0;
        const MessageCounter counter(List());
        view.list.RowsChanged(rows);
        view.list.SelectRow(0);
        view.list.EnsureRowVisible(0);
        UpdateWindow(List());
        return counter.Counts();
    };
    messagesFor(1000);
    const std::map<UINT, int> messages = messagesFor(1000);
    const int cells = events.cellsAsked;
    EXPECT_EQ(messagesFor(1'000'000), messages);
    EXPECT_EQ(events.cellsAsked, cells);
    EXPECT_GT(cells, 0);
    const auto visible = static_cast<int>(SendMessageW(List(), LVM_GETCOUNTPERPAGE, 0, 0)) + 1;
    EXPECT_LE(cells, 3 * visible * 2) << "three columns; once more for the focus";
}

} // namespace
