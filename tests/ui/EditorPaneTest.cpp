// Rules: Active-color editor
#include "common/ColorRecord.h"
#include "platform/Win32Clipboard.h"
#include "tests/ui/MainFormTest.h"

namespace {

class MainEditorPane : public MainFormTest {
protected:
    [[nodiscard]] HWND Box(int index) const { return Child(IDC_txtActiveColor + index); }
    [[nodiscard]] HWND Slide(int index) const { return Child(IDC_sldActiveColor + index); }
    void Type(int index, const wchar_t* text) const {
        for (; *text != L'\0'; ++text)
            SendMessageW(Box(index), WM_CHAR, static_cast<WPARAM>(*text), 0);
    }
    [[nodiscard]] std::pair<DWORD, DWORD> Selection(int index) const {
        DWORD start = 0;
        DWORD end = 0;
        SendMessageW(Box(index), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
        return {start, end};
    }
};

TEST_F(MainEditorPane, BoxesAreDesignedWithZero) {
    for (int index = 0; index < 9; ++index)
        EXPECT_EQ(TextOf(Box(index)), L"0");
}

TEST_F(MainEditorPane, TextSetByTheProgramIsNotReported) {
    view.editor.SetValueText(3, "77");
    EXPECT_EQ(TextOf(Box(3)), L"77");
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainEditorPane, TextOfTheLanguageFileGoesTheWayOfATypedOne) {
    Control("txtActiveColor")->SetProperty("Text", "17"); // the first of the nine
    EXPECT_EQ(events.lines, std::vector<std::string>{"text 0=17"});
    Control("txtActiveColor")->SetProperty("Text", "17");
    EXPECT_EQ(events.lines.size(), 1U) << "it is no other text";
}

TEST_F(MainEditorPane, TextThatWasSetWhileTheEditorWasHiddenIsShownWhole) {
    form.ShowWindow();
    view.editor.SetValueText(0, "255");
    events.layout.SetHugeFrame(true);
    const HWND box = Child(IDC_txtActiveColor);
    RECT area{};
    GetClientRect(box, &area);
    const auto leftOf = [box](WPARAM character) {
        return static_cast<short>(LOWORD(SendMessageW(box, EM_POSFROMCHAR, character, 0)));
    };
    EXPECT_GE(leftOf(0), 0);
    EXPECT_LT(leftOf(2), area.right);
}

TEST_F(MainEditorPane, EachTypedCharacterIsReportedWithTheWholeText) {
    view.editor.SelectWholeValueText(1);
    Type(1, L"12");
    EXPECT_EQ(events.lines, (std::vector<std::string>{"text 1=1", "text 1=12"}));
}

TEST_F(MainEditorPane, OnlyValueCharactersAreLetThrough) {
    view.editor.SelectWholeValueText(0);
    Type(0, L"a-1ü,2 ");
    EXPECT_EQ(TextOf(Box(0)), L"12");
}

TEST_F(MainEditorPane, KeysOfTheClipboardAreLetThrough) {
    constexpr wchar_t ctrlA[] = {1, 0};
    constexpr wchar_t ctrlC[] = {3, 0};
    constexpr wchar_t ctrlV[] = {22, 0};
    constexpr wchar_t ctrlX[] = {24, 0};
    constexpr wchar_t ctrlZ[] = {26, 0};
    Win32Clipboard clipboard([this] { return form.Handle(); });
    ASSERT_TRUE(clipboard.SetText("42"));
    view.editor.SelectWholeValueText(0);
    Type(0, ctrlV);
    EXPECT_EQ(TextOf(Box(0)), L"42");
    view.editor.SelectWholeValueText(0);
    Type(0, ctrlX);
    EXPECT_EQ(TextOf(Box(0)), L"");
    Type(0, ctrlZ);
    EXPECT_EQ(TextOf(Box(0)), L"42");
    ASSERT_TRUE(clipboard.SetText("other"));
    Type(0, ctrlA);
    Type(0, ctrlC);
    EXPECT_EQ(clipboard.Text(), "42");
}

TEST_F(MainEditorPane, BackspaceIsLetThrough) {
    view.editor.SetValueText(0, "25");
    SendMessageW(Box(0), EM_SETSEL, 2, 2);
    Type(0, L"\b");
    EXPECT_EQ(TextOf(Box(0)), L"2");
}

TEST_F(MainEditorPane, TextWrittenBackWhileTypingKeepsTheCaretAtItsPlace) {
    events.onTextChanged = [this](std::size_t index, const std::string& text) {
        view.editor.SetValueText(index, text == "2." ? "2" : text);
    };
    view.editor.SelectWholeValueText(0);
    Type(0, L"2.5");
    EXPECT_EQ(TextOf(Box(0)), L"25");
    EXPECT_EQ(events.lines, (std::vector<std::string>{"text 0=2", "text 0=2.", "text 0=25"}));
}

TEST_F(MainEditorPane, FocusIsReportedAndTheWholeTextCanBeSelected) {
    form.ShowWindow();
    events.layout.SetHugeFrame(true);
    view.editor.SetValueText(2, "224");
    SetFocus(Box(2));
    EXPECT_EQ(events.lines, std::vector<std::string>{"focus 2"});
    view.editor.SelectWholeValueText(2);
    EXPECT_EQ(Selection(2), (std::pair<DWORD, DWORD>{0, 3}));
}

TEST_F(MainEditorPane, ClickThatBringsTheFocusKeepsTheSelection) {
    form.ShowWindow();
    events.layout.SetHugeFrame(true);
    view.editor.SetValueText(2, "224");
    SetFocus(Child(IDC_tvColor));
    SendMessageW(Box(2), EM_SETSEL, 0, -1);
    Click(Box(2), {2, 2});
    EXPECT_EQ(GetFocus(), Box(2));
    EXPECT_EQ(Selection(2), (std::pair<DWORD, DWORD>{0, 3}));
}

TEST_F(MainEditorPane, SlidersHaveTheRangesAndStepsOfTheirValues) {
    for (int index = 0; index < 9; ++index) {
        EXPECT_EQ(SendMessageW(Slide(index), TBM_GETRANGEMIN, 0, 0), 0);
        EXPECT_EQ(SendMessageW(Slide(index), TBM_GETRANGEMAX, 0, 0),
                  MaximumOfColorValue(static_cast<std::size_t>(index)));
        EXPECT_EQ(SendMessageW(Slide(index), TBM_GETLINESIZE, 0, 0), 1);
        EXPECT_EQ(SendMessageW(Slide(index), TBM_GETPAGESIZE, 0, 0), 10);
    }
}

TEST_F(MainEditorPane, SliderThatDoesNotMoveReportsNothing) {
    view.editor.SetSlider(7, 0);
    SendMessageW(Slide(7), WM_KEYDOWN, VK_LEFT, 0);
    SendMessageW(GetParent(Slide(7)), WM_HSCROLL, MAKEWPARAM(TB_THUMBPOSITION, 0),
                 reinterpret_cast<LPARAM>(Slide(7)));
    EXPECT_TRUE(events.lines.empty());
    view.editor.SetSlider(7, 100);
    SendMessageW(Slide(7), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_TRUE(events.lines.empty());
    SendMessageW(Slide(7), WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_EQ(events.lines, std::vector<std::string>{"slider 7=99"});
}

TEST_F(MainEditorPane, WheelTurnsUpToGreaterValuesAndReportsThem) {
    view.editor.SetSlider(7, 40);
    const auto turn = [this](int delta) {
        SendMessageW(Slide(7), WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, delta)), 0);
    };
    turn(WHEEL_DELTA);
    turn(-2 * WHEEL_DELTA);
    turn(WHEEL_DELTA / 2);
    turn(WHEEL_DELTA / 2);
    turn(100 * WHEEL_DELTA);
    turn(WHEEL_DELTA); // at the end already
    EXPECT_EQ(events.lines, (std::vector<std::string>{"slider 7=43", "slider 7=37", "slider 7=40",
                                                      "slider 7=100"}));
}

TEST_F(MainEditorPane, SliderKeysReportEachPositionOnce) {
    view.editor.SetSlider(7, 40);
    EXPECT_TRUE(events.lines.empty());
    SendMessageW(Slide(7), WM_KEYDOWN, VK_RIGHT, 0);
    SendMessageW(Slide(7), WM_KEYUP, VK_RIGHT, 0);
    SendMessageW(Slide(7), WM_KEYDOWN, VK_NEXT, 0);
    SendMessageW(Slide(7), WM_KEYUP, VK_NEXT, 0);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"slider 7=41", "slider 7=51"}));
}

TEST_F(MainEditorPane, BothSwatchesReportTheDoubleClick) {
    for (const int id : {IDC_lblActiveColor, IDC_lblActiveColorSmall})
        SendMessageW(Child(id), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(2, 2));
    EXPECT_EQ(events.commands, (std::vector<int>{IDM_mnuColorChange, IDM_mnuColorChange}));
}

TEST_F(MainEditorPane, SwatchShowsItsColor) {
    form.ShowWindow();
    view.editor.SetSmallSwatch(0x2040C0, 0xDFBF3F);
    view.editor.SetSmallSwatchCaption("Blau & Weiß (R:1 G:2 B:3)");
    EXPECT_EQ(TextOf(Child(IDC_lblActiveColorSmall)), L"Blau & Weiß (R:1 G:2 B:3)");
    const HWND swatch = Child(IDC_lblActiveColorSmall);
    RedrawWindow(swatch, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const HDC device = GetDC(swatch);
    RECT area{};
    GetClientRect(swatch, &area);
    const COLORREF seen = GetPixel(device, area.right - 5, area.bottom / 2);
    ReleaseDC(swatch, device);
    EXPECT_EQ(seen, 0x2040C0U);
}

TEST_F(MainEditorPane, NameLabelShowsAmpersandsAsTheyAre) {
    view.editor.SetColorName("Blau & Weiß");
    EXPECT_EQ(TextOf(Child(IDC_lblActiveColorName)), L"Blau & Weiß");
    EXPECT_NE(GetWindowLongPtrW(Child(IDC_lblActiveColorName), GWL_STYLE) & SS_NOPREFIX, 0);
}

TEST_F(MainEditorPane, NoControlOfTheFrameIsCutOffInAWindowAsDesigned) {
    events.layout.SetHugeFrame(true);
    events.layout.Resized();
    RECT frame{};
    GetWindowRect(Child(IDC_fraShowColor), &frame);
    for (HWND child = GetWindow(Child(IDC_fraShowColor), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        RECT place{};
        RECT common{};
        GetWindowRect(child, &place);
        EXPECT_GT(WidthOf(place), 20) << GetDlgCtrlID(child);
        IntersectRect(&common, &place, &frame);
        EXPECT_TRUE(EqualRect(&common, &place)) << GetDlgCtrlID(child);
    }
}

} // namespace
