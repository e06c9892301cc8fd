// Rules: Empty list
// What the real list shows and does while it has no rows.
#include "platform/controls/Control.h"
#include "platform/Utf16.h"
#include "tests/ui/MainFormTest.h"
#include "tests/ui/WindowPicture.h"

#include <algorithm>

namespace {

using Texts = std::vector<std::string>;

class ListHintForm : public MainFormTest {
protected:
    ListHintForm() {
        events.hintLines = {{.text = "Nothing is open."},
                            {.text = "Open a library ...", .command = IDM_mnuFileOpen},
                            {.text = "Sample & more", .file = "C:\\samples\\a.tnt"},
                            {.text = "Files can be dropped here."}};
    }

    [[nodiscard]] HWND List() const { return Child(IDC_lvColor); }
    void ShowHint() {
        form.ShowWindow();
        view.list.RowsChanged(0);
        PumpMessages();
    }
    // Of the list, from the top down; its header is none of them.
    [[nodiscard]] std::vector<HWND> Labels() const {
        std::vector<HWND> labels;
        for (HWND child = GetWindow(List(), GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT))
            if (ClassOf(child) == L"Static" && IsWindowVisible(child) != FALSE)
                labels.push_back(child);
        std::ranges::sort(labels, {}, [this](HWND label) { return PlaceOf(label).top; });
        return labels;
    }
    [[nodiscard]] Texts Shown() const {
        Texts texts;
        for (HWND label : Labels())
            texts.push_back(ToUtf8(TextOf(label)));
        return texts;
    }
    [[nodiscard]] RECT PlaceOf(HWND label) const {
        RECT place{};
        GetWindowRect(label, &place);
        MapWindowPoints(nullptr, List(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    // A key as the message loop hands it on.
    void Press(WPARAM key) {
        MSG message{GetFocus(), WM_KEYDOWN, key, 1, 0, {}};
        if (!form.TranslateKeys(message))
            DispatchMessageW(&message);
        PumpMessages();
    }
    [[nodiscard]] std::string Focused() const {
        return GetFocus() == List() ? "list" : ToUtf8(TextOf(GetFocus()));
    }
};

// It would lie on the links.
TEST_F(ListHintForm, ListHasNoTipWhileItStandsThere) {
    const auto controls = form.Controls();
    const auto found = std::ranges::find(controls, std::string("lvColor"), &FormControl::Name);
    ASSERT_NE(found, controls.end());
    auto& list = dynamic_cast<::Control&>(**found);
    list.SetProperty("ToolTipText", "Colors of the group");
    ShowHint();
    EXPECT_EQ(list.TipText(), "");
    events.hintLines.clear();
    view.list.RowsChanged(0);
    EXPECT_EQ(list.TipText(), "Colors of the group");
}

TEST_F(ListHintForm, IsThereWithoutRowsAndGoneWithTheFirstOne) {
    ShowHint();
    EXPECT_EQ(Shown(), (Texts{"Nothing is open.", "Open a library ...", "Sample & more",
                              "Files can be dropped here."}));
    view.list.RowsChanged(1);
    EXPECT_EQ(Shown(), Texts{});
    view.list.RowsChanged(0);
    EXPECT_EQ(Shown().size(), 4U);
    events.hintLines.clear();
    view.list.HintChanged();
    EXPECT_EQ(Shown(), Texts{});
}

TEST_F(ListHintForm, TextsOfAnotherLanguageComeWhenTheyAreTold) {
    ShowHint();
    events.hintLines = {{.text = "Nichts ist offen."},
                        {.text = "Ein Text, der ein Link war"},
                        {.text = "Beispiel", .file = "C:\\samples\\a.tnt"}};
    view.list.HintChanged();
    EXPECT_EQ(Shown(), (Texts{"Nichts ist offen.", "Ein Text, der ein Link war", "Beispiel"}));
}

TEST_F(ListHintForm, ClickOnALinkRunsItsCommandOrOpensItsFile) {
    ShowHint();
    const std::vector<HWND> labels = Labels();
    ASSERT_EQ(labels.size(), 4U);
    for (HWND label : labels)
        Click(label, {2, 2});
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuFileOpen});
    EXPECT_EQ(events.lines, Texts{"sample C:\\samples\\a.tnt"});
}

TEST_F(ListHintForm, ClickMayBringMoreLinesThanThereWere) {
    events.hintLines.resize(2);
    ShowHint();
    events.onCommand = [this](int) {
        for (int line = 0; line < 6; ++line)
            events.hintLines.push_back({.text = "one more", .command = IDM_mnuFileNew});
        view.list.HintChanged();
    };
    Click(Labels().at(1), {2, 2});
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuFileOpen});
    EXPECT_EQ(Shown().size(), 8U);
}

TEST_F(ListHintForm, ClickOnATextGivesTheListTheFocus) {
    ShowHint();
    SetFocus(Child(IDC_tvColor));
    Click(Labels().front(), {2, 2});
    EXPECT_EQ(GetFocus(), List());
}

TEST_F(ListHintForm, GrowsWithTheResolution) {
    ShowHint();
    const auto height = [this](std::size_t line) {
        const RECT place = PlaceOf(Labels().at(line));
        return place.bottom - place.top;
    };
    const LONG before = height(1);
    RECT bounds{};
    GetWindowRect(form.Handle(), &bounds);
    bounds.right += (bounds.right - bounds.left) / 2;
    SendMessageW(form.Handle(), WM_DPICHANGED, MAKEWPARAM(192, 192),
                 reinterpret_cast<LPARAM>(&bounds));
    PumpMessages();
    EXPECT_NEAR(height(1), 2 * before, 3);
    EXPECT_EQ(Shown().size(), 4U);
    const RECT first = PlaceOf(Labels().front());
    RECT client{};
    GetClientRect(List(), &client);
    EXPECT_GT(first.left, 0);
    EXPECT_LT(PlaceOf(Labels().back()).bottom, client.bottom);
}

TEST_F(ListHintForm, ArrowKeysGoFromLinkToLinkAndEnterTakesOne) {
    ShowHint();
    SetFocus(List());
    Texts way;
    for (const WPARAM key : {WPARAM{VK_DOWN}, WPARAM{VK_DOWN}, WPARAM{VK_DOWN}, WPARAM{VK_UP},
                             WPARAM{VK_UP}, WPARAM{VK_UP}}) {
        Press(key);
        way.push_back(Focused());
    }
    EXPECT_EQ(way, (Texts{"Open a library ...", "Sample & more", "list", "Sample & more",
                          "Open a library ...", "list"}));
    Press(VK_DOWN);
    Press(VK_RETURN);
    Press(VK_DOWN);
    Press(VK_SPACE);
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuFileOpen});
    EXPECT_EQ(events.lines, Texts{"sample C:\\samples\\a.tnt"});
}

TEST_F(ListHintForm, FocusStaysOnItsLinkWhenAnotherOneComesBeforeIt) {
    ShowHint();
    SetFocus(List());
    Press(VK_DOWN);
    ASSERT_EQ(Focused(), "Open a library ...");
    events.hintLines.insert(events.hintLines.begin() + 1,
                            {.text = "Recover ...", .command = IDM_mnuFileRecover});
    view.list.HintChanged();
    EXPECT_EQ(Shown().at(1), "Recover ...");
    EXPECT_EQ(Focused(), "Open a library ...");
    Press(VK_RETURN);
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuFileOpen});
}

TEST_F(ListHintForm, TabLeavesALinkAsItLeavesTheList) {
    ShowHint();
    SetFocus(List());
    Press(VK_TAB);
    const HWND next = GetFocus();
    ASSERT_NE(next, List());
    SetFocus(List());
    Press(VK_DOWN);
    ASSERT_EQ(Focused(), "Open a library ...");
    Press(VK_TAB);
    EXPECT_EQ(GetFocus(), next);
}

TEST_F(ListHintForm, RowsThatComeTakeTheFocusOfALink) {
    ShowHint();
    SetFocus(List());
    Press(VK_DOWN);
    view.list.RowsChanged(3);
    EXPECT_EQ(GetFocus(), List());
}

TEST_F(ListHintForm, StandsInTheMiddleBelowTheHeaderInEveryViewAndAfterAResize) {
    ShowHint();
    for (const int mode : {3, 0, 1, 2, 3}) {
        view.list.SetListViewMode(static_cast<ListViewMode>(mode));
        for (const int width : {900, 1200}) {
            SetWindowPos(form.Handle(), nullptr, 0, 0, width, 700, SWP_NOMOVE | SWP_NOZORDER);
            PumpMessages();
            RECT client{};
            GetClientRect(List(), &client);
            const std::vector<HWND> labels = Labels();
            ASSERT_EQ(labels.size(), 4U);
            const RECT first = PlaceOf(labels.front());
            const RECT last = PlaceOf(labels.back());
            EXPECT_NEAR(first.top + last.bottom, client.bottom, 40);
            LONG right = 0;
            for (HWND label : labels) {
                EXPECT_EQ(PlaceOf(label).left, first.left);
                right = std::max(right, PlaceOf(label).right);
            }
            EXPECT_NEAR(first.left + right, client.right, 2);
        }
    }
}

TEST_F(ListHintForm, LinesThatHaveNoRoomAreLeftOutFromTheLastOneOn) {
    ShowHint();
    const auto shownAt = [this](int width, int height) {
        SetWindowPos(List(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
        return Shown();
    };
    EXPECT_EQ(shownAt(400, 110), (Texts{"Nothing is open.", "Open a library ..."}));
    EXPECT_EQ(shownAt(60, 400), Texts{}) << "too narrow to be read";
    EXPECT_EQ(shownAt(400, 400).size(), 4U);
}

TEST_F(ListHintForm, GroundIsThatOfTheList) {
    ShowHint();
    for (HWND label : Labels()) {
        const WindowPicture picture = PictureOf(label);
        ASSERT_FALSE(picture.pixels.empty());
        const DWORD corner = picture.pixels.front();
        EXPECT_EQ(RGB(corner >> 16, corner >> 8, corner), GetSysColor(COLOR_WINDOW));
    }
}

TEST_F(ListHintForm, AFormThatShowsManyHintsKeepsNoWindowAndNoFont) {
    ShowHint();
    const std::vector<HintLine> lines = events.hintLines;
    const auto objects = [] { return GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS); };
    const auto children = [this] {
        int count = 0;
        for (HWND child = GetWindow(List(), GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT))
            ++count;
        return count;
    };
    const auto change = [&](int round) {
        events.hintLines = lines;
        events.hintLines.front().text = std::to_string(round);
        view.list.RowsChanged(round % 2);
    };
    change(0);
    const int before = children();
    const DWORD objectsBefore = objects();
    for (int round = 0; round < 200; ++round)
        change(round);
    EXPECT_EQ(children(), before);
    EXPECT_EQ(objects(), objectsBefore);
}

} // namespace
