// Rules: Tree and list views
#include "mainwindow/panes/FieldBorder.h"
#include "shading/SurfaceShade.h"
#include "tests/fakes/Dose.h"
#include "tests/platform/ScratchFolder.h"
#include "tests/platform/ScratchRegistry.h"
#include "tests/ui/GuiObjects.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/RealProgram.h"
#include "tests/ui/WindowPicture.h"

#include <commctrl.h>

namespace {

constexpr std::array kModes = {ListViewMode::LargeIcons, ListViewMode::SmallIcons,
                               ListViewMode::List, ListViewMode::Details};

constexpr ColorValueArray kRed{200, 30, 20, 60, 80, 50, 40, 0, 0};
constexpr ColorValueArray kGreenGlass{20, 180, 90, 60, 80, 50, 40, 60, 10};

void Repaint(HWND list) {
    PumpMessages();
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

RECT PlaceOfPicture(HWND list, int row) {
    RECT place{LVIR_ICON, 0, 0, 0};
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    return place;
}

COLORREF MiddleOf(HWND list, int row) {
    const RECT place = PlaceOfPicture(list, row);
    const HDC device = GetDC(list);
    const COLORREF color =
        GetPixel(device, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
    ReleaseDC(list, device);
    return color;
}

// Ten rows, the first two with colors.
class RowColors : public MainFormTest {
protected:
    RowColors() {
        events.rowValues = {{0, kRed}, {1, kGreenGlass}};
        view.list.AddColumns({{"Name", "Name", 2000}, {"R", "red", 600}});
        view.list.RowsChanged(10);
        form.Move({300, 300, 15000, 10500}); // rows are in sight at every resolution
        form.ShowWindow();
    }

    [[nodiscard]] HWND List() const { return Child(IDC_lvColor); }
    [[nodiscard]] WindowPicture Shown() const {
        Repaint(List());
        return PictureOf(List());
    }
    void ChangeResolution(int dpi) {
        RECT bounds{};
        GetWindowRect(form.Handle(), &bounds);
        SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&bounds));
    }
    [[nodiscard]] std::vector<std::uint32_t> Expected(const ColorValueArray& values,
                                                      bool isLarge) const {
        if (isLarge)
            return BallPicture(values, BallShape(form.Scale().FromDesign(32), Lighting::TwoLamps));
        const int one = form.Scale().FromDesign(16) / 16;
        const RedGreenBlue border = SplitColorNumber(GetSysColor(COLOR_3DSHADOW));
        return FieldPicture(values, {form.Scale().FromDesign(16), one, one,
                                     static_cast<std::uint32_t>(border.red << 16 |
                                                                border.green << 8 | border.blue)});
    }
    // Each pixel that the picture covers whole is shown as it is.
    void ExpectPicture(int row, const ColorValueArray& values, bool isLarge) const {
        const std::vector<std::uint32_t> expected = Expected(values, isLarge);
        const int size = form.Scale().FromDesign(isLarge ? 32 : 16);
        const RECT place = PlaceOfPicture(List(), row);
        const WindowPicture shown = Shown();
        const int left = (place.left + place.right - size) / 2;
        const int top = (place.top + place.bottom - size) / 2;
        int wrong = 0;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                const std::uint32_t pixel = expected.at(static_cast<std::size_t>(y * size + x));
                const DWORD seen =
                    shown.pixels.at(static_cast<std::size_t>((top + y) * shown.width + left + x));
                wrong += pixel >> 24 == 255 && ((pixel ^ seen) & 0xFFFFFF) != 0 ? 1 : 0;
            }
        EXPECT_EQ(wrong, 0) << "row " << row << " at " << size;
    }
    void ExpectPicturesInAllModes() {
        for (const ListViewMode mode : kModes) {
            view.list.SetListViewMode(mode);
            view.list.EnsureRowVisible(0);
            const bool isLarge = mode == ListViewMode::LargeIcons;
            for (const int selected : {-1, 0}) {
                view.list.SelectRow(selected);
                ExpectPicture(0, kRed, isLarge);
                ExpectPicture(1, kGreenGlass, isLarge);
            }
        }
    }
};

TEST_F(RowColors, EachViewShowsThePictureOfEachRowAlsoOfTheSelectedOne) {
    view.list.ShowRowColors(true);
    ExpectPicturesInAllModes();
}

TEST_F(RowColors, PicturesAreMadeForEveryResolution) {
    view.list.ShowRowColors(true);
    for (const int dpi : {120, 144, 192}) {
        ChangeResolution(dpi);
        ExpectPicturesInAllModes();
    }
}

TEST_F(RowColors, SwitchedOffNothingIsAskedAndTheCommonPictureIsBack) {
    for (const ListViewMode mode : kModes) {
        view.list.SetListViewMode(mode);
        events.valuesAsked = 0;
        const WindowPicture before = Shown();
        EXPECT_EQ(events.valuesAsked, 0);
        view.list.ShowRowColors(true);
        const WindowPicture on = Shown();
        EXPECT_FALSE(on == before);
        EXPECT_GT(events.valuesAsked, 0);
        view.list.ShowRowColors(false);
        const WindowPicture off = Shown();
        EXPECT_TRUE(off == before) << Difference(off, before);
    }
}

TEST_F(RowColors, OnlyRowsInSightAreAskedFor) {
    view.list.RowsChanged(100000);
    view.list.ShowRowColors(true);
    for (const ListViewMode mode : kModes) {
        view.list.SetListViewMode(mode);
        events.valuesAsked = 0;
        static_cast<void>(Shown());
        EXPECT_GT(events.valuesAsked, 0);
        EXPECT_LT(events.valuesAsked, 1000);
    }
}

TEST_F(RowColors, RowWithoutAColorHasNoPicture) {
    view.list.SetListViewMode(ListViewMode::Details);
    view.list.ShowRowColors(true);
    Repaint(List());
    EXPECT_EQ(MiddleOf(List(), 5), GetSysColor(COLOR_WINDOW));
}

TEST_F(RowColors, ColumnThatIsNarrowerThanThePictureCutsItOff) {
    view.list.SetListViewMode(ListViewMode::Details);
    SendMessageW(List(), LVM_SETCOLUMNWIDTH, 0, 8);
    view.list.ShowRowColors(true);
    const RECT place = PlaceOfPicture(List(), 0);
    const WindowPicture shown = Shown();
    RECT bounds{LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(List(), LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&bounds));
    const LONG line = (place.top + place.bottom) / 2;
    for (LONG x = bounds.left + 8; x < bounds.left + 24; ++x)
        EXPECT_NE(shown.pixels.at(static_cast<std::size_t>(line * shown.width + x)) & 0xFFFFFF,
                  0xC81E14U)
            << x;
}

TEST(RowColorsBorder, IsThatOfSwatchesAndTheColorOfTextsInHighContrast) {
    EXPECT_EQ(FieldBorderColor(false), GetSysColor(COLOR_3DSHADOW));
    EXPECT_EQ(FieldBorderColor(true), GetSysColor(COLOR_WINDOWTEXT));
}

TEST_F(RowColors, PagesOfColorsHoldNoMoreGraphicsObjectsHoweverManyAreShown) {
    constexpr int kRows = 2000;
    for (int row = 0; row < kRows; ++row)
        events.rowValues[row] = {static_cast<std::int16_t>(row % 256),
                                 static_cast<std::int16_t>(row / 256),
                                 100,
                                 60,
                                 60,
                                 50,
                                 50,
                                 20,
                                 0};
    view.list.RowsChanged(kRows);
    view.list.ShowRowColors(true);
    form.Move({600, 600, 7000, 3500});
    GuiObjects first;
    const int pages = Dose("TNT_PAGES", 500);
    for (int page = 0; page <= pages; ++page) {
        if (page % 50 == 0)
            view.list.SetListViewMode(kModes.at(static_cast<std::size_t>(page / 50) % 4));
        const bool isAtEnd = page % 50 == 49;
        SendMessageW(List(), WM_KEYDOWN, isAtEnd ? VK_HOME : VK_NEXT, 0);
        UpdateWindow(List());
        if (page == 200)
            first = CountGuiObjects();
    }
    const GuiObjects last = CountGuiObjects();
    EXPECT_LE(last.gdi, first.gdi);
    EXPECT_LE(last.user, first.user);
    events.lines.clear();
}

// The program with a library of one color.
class RowColorsOfProgram : public testing::Test {
protected:
    RowColorsOfProgram() {
        program.application.Start();
        program.prompts.typed = {"Paints", "Reds", "Signal"};
        program.Run(IDM_mnuColorNewMainNode);
    }

    [[nodiscard]] HWND List() const { return FindChild(program.main.Handle(), IDC_lvColor); }
    [[nodiscard]] COLORREF Shown() const {
        Repaint(List());
        return MiddleOf(List(), 0);
    }
    void TypeRed(const wchar_t* red) const {
        SetWindowTextW(FindChild(program.main.Handle(), IDC_txtActiveColor), red);
        PumpMessages();
    }

    ScratchRegistry registry;
    ScratchFolder folder;
    Win32AnsiCodePage codePage{1252};
    RealProgram program{registry, folder.Path(), codePage};
};

TEST_F(RowColorsOfProgram, FollowTheUpdateOfAColorAndItsUndo) {
    program.Run(IDM_mnuViewColorsInList);
    const COLORREF before = Shown();
    TypeRed(L"11");
    EXPECT_EQ(Shown(), before) << "the library knows nothing of it yet";
    program.Run(IDM_mnuColorUpdateColor);
    const COLORREF after = Shown();
    EXPECT_EQ(GetRValue(after), 11);
    EXPECT_EQ(GetGValue(after), GetGValue(before));
    program.Run(IDM_mnuEditUndo);
    EXPECT_EQ(Shown(), before);
}

} // namespace
