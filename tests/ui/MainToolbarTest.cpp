// Rules: Layout, bars and views
#include "mainwindow/CommandTable.h"
#include "mainwindow/ToolbarTable.h"
#include "platform/Utf16.h"
#include "tests/ui/MainFormTest.h"

#include <array>

namespace {

class MainToolbar : public MainFormTest {
protected:
    [[nodiscard]] HWND Bar() const { return Child(IDC_tlbarMain); }
    [[nodiscard]] ToolbarButtons& Buttons() { return *Control("tlbarMain")->Buttons(); }

    [[nodiscard]] RECT PlaceOf(int index) const {
        RECT place{};
        SendMessageW(Bar(), TB_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&place));
        return place;
    }
    [[nodiscard]] std::string TextOfButton(int command) const {
        std::array<wchar_t, 128> text{};
        SendMessageW(Bar(), TB_GETBUTTONTEXTW, static_cast<WPARAM>(command),
                     reinterpret_cast<LPARAM>(text.data()));
        return ToUtf8(text.data());
    }
    void PressKeys(std::initializer_list<WPARAM> keys) const {
        for (const WPARAM key : keys) {
            PostMessageW(form.Handle(), WM_KEYDOWN, key, 0);
            PostMessageW(form.Handle(), WM_KEYUP, key, 0);
        }
    }
};

TEST_F(MainToolbar, HoldsEveryButtonOfTheTableInItsOrder) {
    ASSERT_EQ(Buttons().ButtonCount(), static_cast<int>(kToolbarRows.size()));
    ASSERT_EQ(SendMessageW(Bar(), TB_BUTTONCOUNT, 0, 0), static_cast<LRESULT>(kToolbarRows.size()));
    for (int index = 0; index < Buttons().ButtonCount(); ++index) {
        const ToolbarRow& row = kToolbarRows.at(static_cast<std::size_t>(index));
        EXPECT_EQ(Buttons().ButtonKey(index + 1), row.key);
        EXPECT_EQ(Buttons().ButtonStyle(index + 1), row.style);
        EXPECT_EQ(Buttons().ButtonProperty(index + 1, "ToolTipText"), row.toolTip);
    }
}

TEST_F(MainToolbar, EveryButtonRunsItsCommandWhenClicked) {
    std::vector<int> expected;
    for (std::size_t index = 0; index < kToolbarRows.size(); ++index) {
        const ToolbarRow& row = kToolbarRows.at(index);
        if (row.command == 0)
            continue;
        const RECT place = PlaceOf(static_cast<int>(index));
        Click(Bar(), {place.left + 6, (place.top + place.bottom) / 2});
        expected.push_back(row.command);
    }
    EXPECT_EQ(events.commands, expected);
}

TEST_F(MainToolbar, EveryButtonHasItsPicture) {
    const auto images = reinterpret_cast<HIMAGELIST>(SendMessageW(Bar(), TB_GETIMAGELIST, 0, 0));
    int side = 0;
    ASSERT_NE(ImageList_GetIconSize(images, &side, &side), FALSE);
    for (const ToolbarRow& row : kToolbarRows) {
        if (*row.icon == '\0')
            continue;
        EXPECT_TRUE(LoadNamedIcon(row.icon, side)) << row.icon;
        const auto index = static_cast<int>(
            SendMessageW(Bar(), TB_GETBITMAP, static_cast<WPARAM>(row.command), 0));
        EXPECT_TRUE(IconHandle(ImageList_GetIcon(images, index, ILD_NORMAL))) << row.icon;
    }
}

TEST_F(MainToolbar, ArrowOpensTheButtonMenuAndItsEntryRuns) {
    form.ShowWindow();
    const RECT place = PlaceOf(1);
    PressKeys({VK_DOWN, VK_DOWN, VK_RETURN});
    Click(Bar(), {place.right - 4, (place.top + place.bottom) / 2});
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorNewGroup});
}

TEST_F(MainToolbar, MenuEntriesFollowTheTable) {
    std::vector<std::string> found;
    for (int button = 1; button <= Buttons().ButtonCount(); ++button)
        for (int entry = 1; entry <= Buttons().MenuCount(button); ++entry)
            found.push_back(Buttons().ButtonKey(button) + "." + Buttons().MenuKey(button, entry) +
                            "=" + Buttons().MenuText(button, entry));
    std::vector<std::string> expected;
    for (const ButtonMenuRow& row : kButtonMenuRows)
        expected.push_back(std::string(row.buttonKey) + "." + row.key + "=" + row.text);
    EXPECT_EQ(found, expected);
}

TEST_F(MainToolbar, ToolTipIsToldAndAnnounced) {
    Buttons().SetButtonProperty(4, "ToolTipText", "Bibliothek öffnen");
    EXPECT_EQ(ButtonTip(form.Handle(), IDM_mnuFileOpen), "Bibliothek öffnen");
    EXPECT_EQ(TextOfButton(IDM_mnuFileOpen), "Bibliothek öffnen");
}

TEST_F(MainToolbar, CaptionMakesTheButtonWiderAndGoesAgain) {
    const int before = WidthOf(PlaceOf(3));
    Buttons().SetButtonProperty(4, "Caption", "Bibliothek öffnen");
    EXPECT_GT(WidthOf(PlaceOf(3)), before + 20);
    EXPECT_EQ(TextOfButton(IDM_mnuFileOpen), "Bibliothek öffnen");
    Buttons().SetButtonProperty(4, "Caption", "");
    EXPECT_EQ(WidthOf(PlaceOf(3)), before);
}

TEST_F(MainToolbar, UnknownPropertyOfAButtonIsAnError) {
    EXPECT_THROW(Buttons().SetButtonProperty(2, "Text", "x"), RuntimeError);
}

TEST_F(MainToolbar, HiddenButtonGoesSeparatorsIncluded) {
    const LONG before = PlaceOf(3).left;
    view.bars.SetButtonVisible("New", false);
    view.bars.SetButtonVisible("sepST1", false);
    EXPECT_NE(SendMessageW(Bar(), TB_ISBUTTONHIDDEN, IDM_mnuColorNewColor, 0), 0);
    EXPECT_LT(PlaceOf(3).left, before - 20);
    view.bars.SetButtonVisible("New", true);
    view.bars.SetButtonVisible("sepST1", true);
    EXPECT_EQ(PlaceOf(3).left, before);
}

TEST_F(MainToolbar, ViewButtonsAreOneGroup) {
    view.bars.SetButtonPressed("View List", true);
    view.bars.SetButtonPressed("View Details", true);
    EXPECT_EQ(SendMessageW(Bar(), TB_ISBUTTONCHECKED, IDM_mnuViewColorList, 0), 0);
    EXPECT_NE(SendMessageW(Bar(), TB_ISBUTTONCHECKED, IDM_mnuViewColorDetails, 0), 0);
}

TEST_F(MainToolbar, HiddenToolbarTakesNoHeight) {
    EXPECT_GT(view.layout.Metrics().toolbarHeight, 300);
    view.bars.SetToolbarVisible(false);
    EXPECT_EQ(view.layout.Metrics().toolbarHeight, 0);
}

TEST_F(MainToolbar, NarrowWindowWrapsTheButtonsAndAWideOneUnwrapsThem) {
    const float oneRow = view.layout.Metrics().toolbarHeight;
    const TwipsRect bounds = form.Bounds();
    form.Move({bounds.left, bounds.top, 5400, bounds.height});
    EXPECT_GT(view.layout.Metrics().toolbarHeight, oneRow * 1.5F);
    RECT bar{};
    GetClientRect(Bar(), &bar);
    for (int index = 0; index < Buttons().ButtonCount(); ++index)
        EXPECT_LE(PlaceOf(index).right, bar.right + 8) << Buttons().ButtonKey(index + 1);
    form.Move(bounds);
    EXPECT_EQ(view.layout.Metrics().toolbarHeight, oneRow);
}

TEST_F(MainToolbar, EmptyToolbarStillTakesItsHeight) {
    form.Move({0, 0, 15000, 6000}); // all buttons in one row
    const float height = view.layout.Metrics().toolbarHeight;
    for (const ToolbarRow& row : kToolbarRows)
        view.bars.SetButtonVisible(row.key, false);
    view.bars.ArrangeBars();
    EXPECT_EQ(view.layout.Metrics().toolbarHeight, height);
}

} // namespace
