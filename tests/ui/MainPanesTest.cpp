// Rules: Tree and list views
#include "tests/fakes/LibraryNodes.h"
#include "tests/ui/MainFormTest.h"

#include "platform/GlobalMemory.h"
#include "platform/SilenceAtScopeEnd.h"
#include "platform/Utf16.h"

#include <cstring>
#include <shellapi.h>
#include <shlobj.h>

namespace {

class MainPanes : public MainFormTest {
protected:
    // What the shell posts when files are dropped on the window.
    [[nodiscard]] static WPARAM DropOf(const std::vector<std::wstring>& files) {
        std::wstring names;
        for (const std::wstring& file : files)
            names += file + L'\0';
        names += L'\0';
        const std::size_t size = names.size() * sizeof(wchar_t);
        GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, sizeof(DROPFILES) + size));
        {
            const GlobalLockGuard lock(memory.Get());
            auto* drop = new (lock.Content()) DROPFILES{};
            drop->pFiles = sizeof(DROPFILES);
            drop->fWide = TRUE;
            std::memcpy(drop + 1, names.data(), size);
        }
        return reinterpret_cast<WPARAM>(memory.Release());
    }
    void PressF6() {
        MSG key{GetFocus(), WM_KEYDOWN, VK_F6, 0, 0, {}};
        EXPECT_TRUE(form.TranslateKeys(key));
    }
    [[nodiscard]] static int Focused() { return GetDlgCtrlID(GetFocus()); }
};

TEST_F(MainPanes, FilesCanBeDroppedAndAreReportedInTheirOrder) {
    EXPECT_NE(GetWindowLongPtrW(form.Handle(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
    SendMessageW(form.Handle(), WM_DROPFILES, DropOf({L"C:\\Ü b.tnt", L"C:\\a.tnt"}), 0);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"dropped C:\\Ü b.tnt", "dropped C:\\a.tnt"}));
}

TEST_F(MainPanes, FilesDroppedWhileAQuestionIsOpenAreLeft) {
    EnableWindow(form.Handle(), FALSE); // as the question's box does
    SendMessageW(form.Handle(), WM_DROPFILES, DropOf({L"C:\\a.tnt"}), 0);
    EXPECT_TRUE(events.lines.empty());
    EnableWindow(form.Handle(), TRUE);
    SendMessageW(form.Handle(), WM_DROPFILES, DropOf({L"C:\\a.tnt"}), 0);
    EXPECT_EQ(events.lines, std::vector<std::string>{"dropped C:\\a.tnt"});
}

TEST_F(MainPanes, FormReportsNothingAfterItsScopeHasEnded) {
    form.ShowWindow();
    events.layout.SetHugeFrame(true);
    { const SilenceAtScopeEnd silence(form); }
    events.lines.clear();
    SetFocus(Child(IDC_txtActiveColor));
    SetWindowTextW(Child(IDC_txtActiveColor), L"7");
    SendMessageW(form.Handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainPanes, F6GoesFromTreeToListToTheLargeEditorAndRound) {
    form.ShowWindow();
    events.layout.SetHugeFrame(true);
    SetFocus(Child(IDC_tvColor));
    for (const int pane : {IDC_lvColor, IDC_txtActiveColor, IDC_tvColor, IDC_lvColor}) {
        PressF6();
        EXPECT_EQ(Focused(), pane);
    }
    SetFocus(Child(IDC_sldActiveColor + 4)); // anywhere in the editor
    PressF6();
    EXPECT_EQ(Focused(), IDC_tvColor);
}

TEST_F(MainPanes, F6LeavesAHiddenEditorOut) {
    form.ShowWindow();
    SetFocus(Child(IDC_lvColor));
    PressF6();
    EXPECT_EQ(Focused(), IDC_tvColor);
}

class MainFocus : public MainPanes {
protected:
    MainFocus() {
        form.ShowWindow();
        events.layout.SetHugeFrame(true);
        view.list.AddColumns({{"Name", "Name", 1500}});
        view.list.RowsChanged(5);
        view.list.SelectRow(1);
        view.tree.NodeAdded(NodeOfLibrary("0D", "Library"), "");
        view.tree.NodeSelected("0D");
    }

    // To another window of the program and back.
    [[nodiscard]] int FocusAfterAnotherWindow() {
        HWND other = CreateWindowW(WC_STATICW, L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                   nullptr, nullptr, nullptr);
        SetActiveWindow(other);
        SetActiveWindow(form.Handle());
        DestroyWindow(other);
        PumpMessages();
        return Focused();
    }
};

TEST_F(MainFocus, EveryControlHasTheFocusAgainAfterAnotherWindowWasUsed) {
    for (const int id :
         {IDC_lvColor, IDC_tvColor, IDC_txtActiveColor + 3, IDC_sldActiveColor + 8, IDC_lvColor}) {
        SetFocus(Child(id));
        EXPECT_EQ(FocusAfterAnotherWindow(), id);
    }
}

TEST_F(MainFocus, PaneWhoseLabelWasEditedHasTheFocusAgain) {
    view.list.EditRowLabel(1);
    EXPECT_EQ(FocusAfterAnotherWindow(), IDC_lvColor);
    view.tree.EditNodeLabel("0D");
    EXPECT_EQ(FocusAfterAnotherWindow(), IDC_tvColor);
    view.list.EditRowLabel(1);
    EXPECT_EQ(FocusAfterAnotherWindow(), IDC_lvColor);
}

TEST_F(MainFocus, WindowThatWasMinimisedHasTheFocusWhereItWas) {
    SetFocus(Child(IDC_lvColor));
    ShowWindow(form.Handle(), SW_MINIMIZE);
    PumpMessages();
    ShowWindow(form.Handle(), SW_RESTORE);
    EXPECT_TRUE(PumpUntil([&] { return Focused() == IDC_lvColor; })) << Focused();
}

class MainTips : public MainFormTest {
protected:
    // What the tool-tip window gets when it asks for the tip of a control.
    [[nodiscard]] std::string TipOf(int id) {
        NMTTDISPINFOW request{};
        request.hdr = {form.Tips().Window(), reinterpret_cast<UINT_PTR>(Child(id)),
                       static_cast<UINT>(TTN_GETDISPINFOW)};
        request.uFlags = TTF_IDISHWND;
        SendMessageW(form.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&request));
        return ToUtf8(request.lpszText);
    }
};

// The pointer stands over a place of tree or list.
class PaneTips : public MainTips {
protected:
    PaneTips() {
        form.ShowWindow();
        view.list.AddColumns({{"Name", "Name", 1500}, {"R", "red", 600}});
        view.list.SetListViewMode(ListViewMode::Details);
        view.list.RowsChanged(3);
        view.tree.NodeAdded(NodeOfLibrary("0D", "Library"), "");
        view.tree.NodeAdded(NodeOfLibrary("1D", longName), "0D");
        Control("tvColor")->SetProperty("ToolTipText", "the tree");
        Control("lvColor")->SetProperty("ToolTipText", "the list");
        PumpMessages();
    }
    [[nodiscard]] std::string TipAt(int id, POINT at) {
        ClientToScreen(Child(id), &at);
        SetCursorPos(at.x, at.y);
        return TipOf(id);
    }
    [[nodiscard]] POINT LineOfTree(int line) const {
        const auto height =
            static_cast<int>(SendMessageW(Child(IDC_tvColor), TVM_GETITEMHEIGHT, 0, 0));
        return {50, height * line + height / 2};
    }
    [[nodiscard]] POINT CellOfList(int row, int subItem) const {
        RECT place{LVIR_BOUNDS, subItem, 0, 0};
        SendMessageW(Child(IDC_lvColor), LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&place));
        return {place.left + 30, (place.top + place.bottom) / 2};
    }

    const std::string longName = std::string(100, 'W');
};

TEST_F(PaneTips, TreeShowsOnlyCutNamesOverItsNodesAndItsOwnTipBesideThem) {
    EXPECT_EQ(TipAt(IDC_tvColor, LineOfTree(0)), "");
    EXPECT_EQ(TipAt(IDC_tvColor, LineOfTree(1)), longName);
    EXPECT_EQ(TipAt(IDC_tvColor, LineOfTree(5)), "the tree");
}

TEST_F(PaneTips, ListShowsOnlyCutNamesOverItsRowsAndItsOwnTipBesideThem) {
    for (const ListViewMode mode : {ListViewMode::LargeIcons, ListViewMode::SmallIcons,
                                    ListViewMode::List, ListViewMode::Details}) {
        view.list.SetListViewMode(mode);
        events.longCell.clear();
        EXPECT_EQ(TipAt(IDC_lvColor, CellOfList(0, 0)), "") << static_cast<int>(mode);
        RECT area{};
        GetClientRect(Child(IDC_lvColor), &area);
        EXPECT_EQ(TipAt(IDC_lvColor, {area.right - 3, area.bottom - 3}), "the list");
    }
    events.longCell = longName;
    EXPECT_EQ(TipAt(IDC_lvColor, CellOfList(0, 0)), longName);
    EXPECT_EQ(TipAt(IDC_lvColor, CellOfList(0, 1)), "");
}

TEST_F(PaneTips, TipGoesWhenThePointerComesToAnotherRow) {
    constexpr int kLongerThanPatience = 32'000;
    const auto moveTo = [this](POINT at) {
        ClientToScreen(Child(IDC_tvColor), &at);
        SetCursorPos(at.x, at.y);
    };
    const POINT empty = LineOfTree(5);
    moveTo(empty);
    ASSERT_TRUE(PumpUntil([&] { return form.Tips().Window() != nullptr; }));
    const HWND tips = form.Tips().Window();
    SendMessageW(tips, TTM_SETDELAYTIME, TTDT_AUTOPOP, kLongerThanPatience); // not by itself
    moveTo({empty.x + 3, empty.y}); // a tip waits for the pointer to stand still
    EXPECT_TRUE(PumpUntil([&] { return IsWindowVisible(tips) != FALSE; }));
    moveTo(LineOfTree(0));
    EXPECT_TRUE(PumpUntil([&] { return IsWindowVisible(tips) == FALSE; }));
}

TEST_F(MainTips, TipsAreMadeWhenThePointerRestsOverAControlThatHasOne) {
    SetCursorPos(0, 0);
    form.ShowWindow();
    Control("tvColor")->SetProperty("ToolTipText", "Bibliotheken und Gruppen");
    PumpMessages();
    EXPECT_EQ(form.Tips().Window(), nullptr);
    RECT tree{};
    GetWindowRect(Child(IDC_tvColor), &tree);
    SetCursorPos((tree.left + tree.right) / 2, (tree.top + tree.bottom) / 2);
    ASSERT_TRUE(PumpUntil([this] { return form.Tips().Window() != nullptr; }));
    EXPECT_TRUE(PumpUntil([this] { return IsWindowVisible(form.Tips().Window()) != FALSE; }))
        << "the pointer does not move again";
}

TEST_F(MainTips, StatusBarShowsACutTextInsteadOfItsToolTip) {
    const std::string longText(300, 'W');
    Control("stbarMain")->SetProperty("ToolTipText", "Status");
    view.bars.SetInfoPanelText("okay");
    EXPECT_EQ(TipOf(IDC_stbarMain), "Status");
    view.bars.SetInfoPanelText(longText);
    EXPECT_EQ(TipOf(IDC_stbarMain), longText);
}

TEST_F(MainTips, ControlShowsItsToolTipText) {
    Control("tvColor")->SetProperty("ToolTipText", "Bibliotheken und Gruppen");
    EXPECT_EQ(TipOf(IDC_tvColor), "Bibliotheken und Gruppen");
    EXPECT_EQ(TipOf(IDC_lvColor), "");
}

TEST_F(MainTips, NameThatIsCutIsShownAsAWholeAndAnyOtherNotAtAll) {
    const std::string longName(200, 'W');
    events.layout.SetHugeFrame(true);
    view.editor.SetColorName("Gold");
    EXPECT_EQ(TipOf(IDC_lblActiveColorName), "");
    view.editor.SetColorName(longName);
    EXPECT_EQ(TipOf(IDC_lblActiveColorName), longName);
}

TEST_F(MainTips, SmallSwatchShowsACutCaptionInsteadOfItsToolTip) {
    const std::string longCaption(300, 'W');
    Control("lblActiveColorSmall")->SetProperty("ToolTipText", "Aktive Farbe");
    view.editor.SetSmallSwatchCaption("Gold (R:1 G:2 B:3)");
    EXPECT_EQ(TipOf(IDC_lblActiveColorSmall), "Aktive Farbe");
    view.editor.SetSmallSwatchCaption(longCaption);
    EXPECT_EQ(TipOf(IDC_lblActiveColorSmall), longCaption);
}

} // namespace
