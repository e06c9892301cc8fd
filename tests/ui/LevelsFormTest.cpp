// Rules: Which color is seen
// The real window that tells which color is seen, worked by keys and clicks.

#include "mainwindow/frmLevels.h"
#include "platform/Utf16.h"
#include "resources/controls.h"
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

class RecordingLevelsEvents : public LevelsEvents {
public:
    void TakeClicked(int row) override { lines.push_back("take " + std::to_string(row)); }
    void ClearClicked(int row) override { lines.push_back("clear " + std::to_string(row)); }
    void ReadClicked() override { lines.emplace_back("read"); }
    void LevelsClosing() override { lines.emplace_back("closing"); }

    Lines lines;
};

LevelRow RowWith(const char* level, const char* state, bool canBeCleared) {
    return {{level, state, "192", "128", "64", "50", "100", "30", "20", "0", "10"},
            kRowColor,
            canBeCleared};
}

const std::vector<LevelRow> kRows{RowWith("Component", "seen", true),
                                  {{"Face", "no color"}, {}, false},
                                  RowWith("Part", "covered", false)};

class LevelsForm : public ListFormTest<frmLevels, IDC_lvLevels> {
protected:
    LevelsForm() {
        window.Attach(recorded);
        window.SetColumnCaptions(
            {"Level", "State", "R", "G", "B", "Amb", "Dif", "Spe", "Shi", "Tra", "Emi"});
        window.ShowSentence("The color of the component covers that of the part.");
        window.ShowRows(kRows, 0);
        window.ShowModeless();
        PumpMessages();
    }

    RecordingLevelsEvents recorded;
};

TEST_F(LevelsForm, OpensWithTheFocusInTheListAndTheGivenRowSelected) {
    EXPECT_EQ(GetFocus(), List());
    EXPECT_EQ(SelectedRow(), 0);
    EXPECT_EQ(Cell(0, 0), "Component");
    EXPECT_EQ(Cell(0, 10), "10");
    EXPECT_EQ(Cell(1, 1), "no color");
    EXPECT_EQ(Cell(1, 2), "");
}

TEST_F(LevelsForm, ShownAgainWhileItIsOpenItKeepsTheFocus) {
    SetFocus(Inside(IDC_cmdReadLevels));
    window.ShowModeless();
    EXPECT_EQ(GetFocus(), Inside(IDC_cmdReadLevels));
}

TEST_F(LevelsForm, EscapeCloseBoxAndButtonCloseTheWindow) {
    Press(VK_ESCAPE);
    EXPECT_EQ(IsWindowVisible(window.Handle()), FALSE);
    window.ShowModeless();
    SendMessageW(window.Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(IsWindowVisible(window.Handle()), FALSE);
    window.ShowModeless();
    PressButton(IDC_cmdCloseLevels);
    EXPECT_EQ(IsWindowVisible(window.Handle()), FALSE);
    EXPECT_EQ(recorded.lines, (Lines{"closing", "closing", "closing"}));
}

TEST_F(LevelsForm, MainWindowCanBeWorkedMeanwhile) {
    EXPECT_NE(IsWindowEnabled(form.Handle()), FALSE);
}

TEST_F(LevelsForm, EnterDoubleClickAndButtonTakeTheSelectedLevel) {
    Press(VK_RETURN);
    window.ShowRows(kRows, 2);
    DoubleClick(2);
    PressButton(IDC_cmdTakeLevel);
    DoubleClick(-1);
    EXPECT_EQ(recorded.lines, (Lines{"take 0", "take 2", "take 2"}));
}

TEST_F(LevelsForm, KeysAloneReachEveryButton) {
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_RETURN);
    Press(VK_UP);
    Press(VK_UP);
    Press(VK_TAB);
    Press(VK_TAB);
    EXPECT_EQ(GetFocus(), Inside(IDC_cmdClearLevel));
    Press(VK_RETURN);
    Press(VK_TAB);
    Press(VK_RETURN);
    EXPECT_EQ(recorded.lines, (Lines{"take 2", "clear 0", "read"}));
}

TEST_F(LevelsForm, F5ReadsAgainFromAnyControl) {
    Press(VK_F5);
    SetFocus(Inside(IDC_cmdCloseLevels));
    Press(VK_F5);
    EXPECT_EQ(recorded.lines, (Lines{"read", "read"}));
}

TEST_F(LevelsForm, ButtonsAreThoseThatTheSelectedLevelAllows) {
    EXPECT_TRUE(IsEnabled(IDC_cmdTakeLevel));
    EXPECT_TRUE(IsEnabled(IDC_cmdClearLevel));
    Press(VK_DOWN); // no color
    EXPECT_FALSE(IsEnabled(IDC_cmdTakeLevel));
    EXPECT_FALSE(IsEnabled(IDC_cmdClearLevel));
    Press(VK_RETURN);
    DoubleClick(1);
    Press(VK_DOWN); // a color that cannot be cleared
    EXPECT_TRUE(IsEnabled(IDC_cmdTakeLevel));
    EXPECT_FALSE(IsEnabled(IDC_cmdClearLevel));
    window.ShowRows({}, -1);
    EXPECT_FALSE(IsEnabled(IDC_cmdTakeLevel));
    EXPECT_FALSE(IsEnabled(IDC_cmdClearLevel));
    EXPECT_TRUE(IsEnabled(IDC_cmdReadLevels));
    EXPECT_EQ(recorded.lines, Lines{});
}

TEST_F(LevelsForm, FocusGoesToTheListWhenTheButtonThatHasItTurnsGrey) {
    SetFocus(Inside(IDC_cmdClearLevel));
    window.ShowRows(kRows, 2);
    EXPECT_EQ(GetFocus(), List());
}

TEST_F(LevelsForm, NothingIsDoneWhileAQuestionIsOpen) {
    EnableWindow(form.Handle(), FALSE);
    Press(VK_RETURN);
    Press(VK_F5);
    DoubleClick(0);
    for (const int id : {IDC_cmdTakeLevel, IDC_cmdClearLevel, IDC_cmdReadLevels})
        PressButton(id);
    EnableWindow(form.Handle(), TRUE);
    EXPECT_EQ(recorded.lines, Lines{});
}

TEST_F(LevelsForm, OnlyLevelsWithAColorHaveASwatch) {
    UpdateWindow(List());
    PumpMessages();
    const auto pixelsOfSwatches = [this] {
        const WindowPicture picture = PictureOf(window.Handle());
        const auto swatch = static_cast<std::uint32_t>(
            RGB(GetBValue(kRowColor), GetGValue(kRowColor), GetRValue(kRowColor)));
        return std::count_if(picture.pixels.begin(), picture.pixels.end(),
                             [&](std::uint32_t pixel) { return (pixel & 0xFFFFFFU) == swatch; });
    };
    const auto two = pixelsOfSwatches();
    EXPECT_GT(two, 2 * 10 * 10);
    window.ShowRows({kRows[0], kRows[1]}, 0);
    UpdateWindow(List());
    PumpMessages();
    EXPECT_EQ(pixelsOfSwatches() * 2, two);
}

TEST_F(LevelsForm, TabVisitsListAndButtons) {
    std::vector<int> order;
    for (int time = 0; time < 6; ++time) {
        order.push_back(GetDlgCtrlID(GetFocus()));
        Press(VK_TAB);
    }
    EXPECT_EQ(order, (std::vector<int>{IDC_lvLevels, IDC_cmdTakeLevel, IDC_cmdClearLevel,
                                       IDC_cmdReadLevels, IDC_cmdCloseLevels, IDC_lvLevels}));
}

TEST_F(LevelsForm, ListIsAnnouncedByTheSentence) {
    const std::wstring sentence = L"The color of the component covers that of the part.";
    EXPECT_EQ(TextOf(Inside(IDC_lblLevels)), sentence);
    EXPECT_EQ(TextOf(List()), sentence);
    EXPECT_EQ(GetWindow(List(), GW_HWNDPREV), Inside(IDC_lblLevels))
        << "a label names the control behind it";
}

TEST_F(LevelsForm, LongSentenceTakesMoreLinesAndTheListGivesThem) {
    const LONG top = PlaceOf(IDC_lvLevels).top;
    std::string sentence = "A sentence";
    for (int word = 0; word < 60; ++word)
        sentence += " that goes on";
    window.ShowSentence(sentence);
    EXPECT_GT(PlaceOf(IDC_lvLevels).top, top);
    EXPECT_GE(PlaceOf(IDC_lvLevels).top, PlaceOf(IDC_lblLevels).bottom);
    EXPECT_LE(PlaceOf(IDC_lvLevels).bottom, PlaceOf(IDC_cmdCloseLevels).top);
}

TEST_F(LevelsForm, ColumnsFillTheListAndShowTheirTexts) {
    for (const int width : {700, 1000, 640}) {
        Resize(width, 400);
        int columns = 0;
        for (int column = 0; column < static_cast<int>(kLevelColumns); ++column)
            columns += ListView_GetColumnWidth(List(), column);
        const RECT list = PlaceOf(IDC_lvLevels);
        EXPECT_LE(columns, WidthOf(list));
        EXPECT_GT(columns, WidthOf(list) - 60);
    }
}

// German captions and states are the longest; the smallest window is the narrowest one.
TEST_F(LevelsForm, NoTextIsCutInTheSmallestWindowAtAnyResolution) {
    window.SetColumnCaptions(
        {"Ebene", "Zustand", "R", "G", "B", "Amb", "Dif", "Spe", "Shi", "Tra", "Emi"});
    window.ShowRows({{{"Komponente", "keine Farbe", "255", "255", "255", "100", "100", "100", "100",
                       "100", "100"},
                      kRowColor,
                      true}},
                    0);
    for (const int dpi : {96, 120, 144, 192}) {
        RECT bounds{0, 0, 10, 10};
        SendMessageW(window.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&bounds));
        PumpMessages();
        for (int column = 0; column < static_cast<int>(kLevelColumns); ++column) {
            std::array<wchar_t, 64> text{};
            ListView_GetItemText(List(), 0, column, text.data(), static_cast<int>(text.size()));
            const int picture = column == 0 ? 20 * dpi / 96 : 0;
            EXPECT_LE(ListView_GetStringWidth(List(), text.data()) + picture,
                      ListView_GetColumnWidth(List(), column))
                << ToUtf8(text.data()) << " at " << dpi;
        }
    }
}

TEST_F(LevelsForm, SmallestWindowHoldsAllItsFields) {
    Resize(10, 10);
    RECT area{};
    GetClientRect(window.Handle(), &area);
    for (const int id : {IDC_lblLevels, IDC_lvLevels, IDC_cmdTakeLevel, IDC_cmdClearLevel,
                         IDC_cmdReadLevels, IDC_cmdCloseLevels}) {
        const RECT place = PlaceOf(id);
        EXPECT_GT(WidthOf(place), 10) << id;
        EXPECT_GT(HeightOf(place), 10) << id;
        EXPECT_LE(place.right, area.right) << id;
        EXPECT_LE(place.bottom, area.bottom) << id;
    }
}

} // namespace
