// Rules: Tree and list views
#include "platform/Utf16.h"
#include "tests/fakes/LibraryNodes.h"
#include "tests/ui/MainFormTest.h"

#include <array>
#include <cstring>

namespace {

// Presses or releases Shift for this thread.
void SetShift(bool down) {
    std::array<BYTE, 256> keys{};
    GetKeyboardState(keys.data());
    keys[VK_SHIFT] = down ? 0x80 : 0;
    SetKeyboardState(keys.data());
}

class MainTree : public MainFormTest {
protected:
    MainTree() {
        view.tree.NodeAdded(NodeOfLibrary("1D", "Materialien"), "");
        view.tree.NodeAdded(NodeOfGroup("1DG1", "Metalle", "1D"), "");
        view.tree.NodeAdded(NodeOfGroup("1DG2", "Kunststoffe", "1D"), "1DG1");
        view.tree.NodeExpanded("1D");
    }

    [[nodiscard]] HWND Tree() const { return Child(IDC_tvColor); }
    [[nodiscard]] HTREEITEM Next(UINT relation, HTREEITEM item = nullptr) const {
        return reinterpret_cast<HTREEITEM>(
            SendMessageW(Tree(), TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }
    [[nodiscard]] std::string Text(HTREEITEM item) const {
        std::array<wchar_t, 64> text{};
        TVITEMW info{};
        info.mask = TVIF_HANDLE | TVIF_TEXT;
        info.hItem = item;
        info.pszText = text.data();
        info.cchTextMax = static_cast<int>(text.size());
        SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&info));
        return ToUtf8(text.data());
    }
    [[nodiscard]] POINT PlaceOf(HTREEITEM item) const {
        RECT place{};
        std::memcpy(&place, &item, sizeof item); // as TVM_GETITEMRECT takes it
        SendMessageW(Tree(), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
        return {place.left + 3, (place.top + place.bottom) / 2};
    }
    void TypeLabel(const wchar_t* text, WPARAM endKey) const {
        const auto edit = reinterpret_cast<HWND>(SendMessageW(Tree(), TVM_GETEDITCONTROL, 0, 0));
        ASSERT_NE(edit, nullptr);
        SetWindowTextW(edit, text);
        SendMessageW(edit, WM_KEYDOWN, endKey, 0);
        SendMessageW(edit, WM_CHAR, endKey, 0);
    }
};

TEST_F(MainTree, MirrorsTheNodesItIsTold) {
    const HTREEITEM root = Next(TVGN_ROOT);
    const HTREEITEM first = Next(TVGN_CHILD, root);
    EXPECT_EQ(Text(root), "Materialien");
    EXPECT_EQ(Text(first), "Metalle");
    EXPECT_EQ(Text(Next(TVGN_NEXT, first)), "Kunststoffe");
    EXPECT_NE(
        SendMessageW(Tree(), TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(root), TVIS_EXPANDED) &
            TVIS_EXPANDED,
        0);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainTree, NodesThatComeInThousandsAreArrangedOnceTheyAreAsked) {
    form.ShowWindow();
    const HWND tree = Tree();
    for (int group = 3; group <= 3000; ++group)
        view.tree.NodeAdded(NodeOfGroup("1DG" + std::to_string(group), "Gruppe", "1D"),
                            "1DG" + std::to_string(group - 1));
    EXPECT_EQ(SendMessageW(tree, TVM_GETCOUNT, 0, 0), 3001);
    PumpMessages();
    SCROLLINFO scroll{sizeof scroll, SIF_RANGE, 0, 0, 0, 0, 0};
    GetScrollInfo(tree, SB_VERT, &scroll);
    EXPECT_GT(scroll.nMax, 2900) << "all of them can be reached";
    EXPECT_EQ(GetUpdateRect(tree, nullptr, FALSE), FALSE) << "and the tree is drawn";
}

TEST_F(MainTree, LibrariesAndGroupsHaveTheirOwnPictures) {
    const auto picture = [this](HTREEITEM item) {
        TVITEMW info{};
        info.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        info.hItem = item;
        SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&info));
        EXPECT_EQ(info.iImage, info.iSelectedImage);
        return info.iImage;
    };
    const HTREEITEM library = Next(TVGN_ROOT);
    const HTREEITEM group = Next(TVGN_CHILD, library);
    EXPECT_NE(picture(library), picture(group));
    EXPECT_EQ(picture(group), picture(Next(TVGN_NEXT, group)));
}

TEST_F(MainTree, EmptyNameIsReportedAndAnEmptiedOneThatIsGivenUpIsNot) {
    form.ShowWindow();
    view.tree.NodeSelected("1DG1");
    view.tree.EditNodeLabel("1DG1");
    TypeLabel(L"", VK_ESCAPE);
    PumpMessages();
    EXPECT_TRUE(events.lines.empty());
    view.tree.EditNodeLabel("1DG1");
    TypeLabel(L"", VK_RETURN);
    PumpMessages();
    EXPECT_EQ(events.lines, std::vector<std::string>{"node label 1DG1="});
}

TEST_F(MainTree, RemovedNodeTakesItsGroupsWithIt) {
    view.tree.NodeSelected("1DG1");
    view.tree.NodeRemoved("1D");
    EXPECT_EQ(Next(TVGN_ROOT), nullptr);
    view.tree.NodeAdded(NodeOfLibrary("1D", "Neu"), "");
    view.tree.NodeAdded(NodeOfGroup("1DG1", "Gruppe", "1D"), "");
    EXPECT_EQ(Text(Next(TVGN_CHILD, Next(TVGN_ROOT))), "Gruppe");
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainTree, SelectionByTheProgramIsNotReported) {
    view.tree.NodeSelected("1DG2");
    EXPECT_EQ(Text(Next(TVGN_CARET)), "Kunststoffe");
    view.tree.NodeSelected("");
    EXPECT_EQ(Next(TVGN_CARET), nullptr);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainTree, SelectionByKeyboardIsReported) {
    view.tree.NodeSelected("1D");
    SendMessageW(Tree(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(events.lines, std::vector<std::string>{"node 1DG1"});
}

TEST_F(MainTree, ClickIsReportedOnceAlsoOnTheSelectedNode) {
    form.ShowWindow();
    view.tree.NodeSelected("1D");
    Click(Tree(), PlaceOf(Next(TVGN_CHILD, Next(TVGN_ROOT))));
    EXPECT_EQ(events.lines, std::vector<std::string>{"node 1DG1"});
    Click(Tree(), PlaceOf(Next(TVGN_CHILD, Next(TVGN_ROOT))));
    EXPECT_EQ(events.lines, (std::vector<std::string>{"node 1DG1", "node 1DG1"}));
}

TEST_F(MainTree, RightButtonSelectsTheNodeAndOpensTheColorMenu) {
    form.ShowWindow();
    view.tree.NodeSelected("1D");
    const POINT place = PlaceOf(Next(TVGN_CHILD, Next(TVGN_ROOT)));
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(Tree(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(place.x, place.y));
    PumpMessages();
    EXPECT_EQ(events.lines, std::vector<std::string>{"node 1DG1"});
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorNewMainNode});
}

TEST_F(MainTree, MenuKeyOpensTheColorMenuForTheSelectedNode) {
    form.ShowWindow();
    view.tree.NodeSelected("1DG1");
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(Tree(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Tree()), -1);
    PumpMessages();
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorNewMainNode});
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainTree, ShiftF10OpensItToo) {
    form.ShowWindow();
    view.tree.NodeSelected("1DG1");
    SetFocus(Tree());
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(form.Handle(), WM_KEYDOWN, VK_RETURN, 0);
    SetShift(true);
    SendMessageW(Tree(), WM_SYSKEYDOWN, VK_F10, 1);
    SetShift(false);
    PumpMessages();
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorNewMainNode});
}

TEST_F(MainTree, F2AsksForTheEdit) {
    SendMessageW(Tree(), WM_KEYDOWN, VK_F2, 0);
    EXPECT_EQ(events.commands, std::vector<int>{IDM_mnuColorRenameNode});
}

TEST_F(MainTree, EditedLabelIsReportedOnce) {
    form.ShowWindow();
    view.tree.EditNodeLabel("1DG1");
    TypeLabel(L"Stähle", VK_RETURN);
    PumpMessages();
    EXPECT_EQ(events.lines, std::vector<std::string>{"node label 1DG1=Stähle"});
    EXPECT_EQ(Text(Next(TVGN_CHILD, Next(TVGN_ROOT))), "Metalle");
    view.tree.NodeTextChanged("1DG1", "Stähle");
    EXPECT_EQ(Text(Next(TVGN_CHILD, Next(TVGN_ROOT))), "Stähle");
}

TEST_F(MainTree, LongNameIsEditedAsAWhole) {
    form.ShowWindow();
    const std::string name(700, 'n');
    view.tree.NodeTextChanged("1DG1", name);
    view.tree.EditNodeLabel("1DG1");
    EXPECT_EQ(
        ToUtf8(TextOf(reinterpret_cast<HWND>(SendMessageW(Tree(), TVM_GETEDITCONTROL, 0, 0)))),
        name);
    TypeLabel(std::wstring(600, L'm').c_str(), VK_RETURN);
    PumpMessages();
    EXPECT_EQ(events.lines, std::vector<std::string>{"node label 1DG1=" + std::string(600, 'm')});
}

TEST_F(MainTree, SecondClickOnTheSelectedNodesTextStartsItsEdit) {
    const auto edit = [this] { return SendMessageW(Tree(), TVM_GETEDITCONTROL, 0, 0); };
    form.ShowWindow();
    SetFocus(Tree());
    const POINT at = PlaceOf(Next(TVGN_CHILD, Next(TVGN_ROOT)));
    Click(Tree(), at);
    EXPECT_FALSE(PumpUntil([&] { return edit() != 0; }, 2 * LongestDoubleClick()));
    Click(Tree(), at);
    EXPECT_TRUE(PumpUntil([&] { return edit() != 0; }));
    TypeLabel(L"Clicked", VK_RETURN);
    PumpMessages();
    EXPECT_EQ(events.lines.back(), "node label 1DG1=Clicked");
}

TEST_F(MainTree, EscapeGivesUpTheEdit) {
    form.ShowWindow();
    view.tree.EditNodeLabel("1DG1");
    TypeLabel(L"x", VK_ESCAPE);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainTree, EndOfTheEditByMessageIsReportedOnce) {
    form.ShowWindow();
    view.tree.EditNodeLabel("1DG1");
    SetWindowTextW(reinterpret_cast<HWND>(SendMessageW(Tree(), TVM_GETEDITCONTROL, 0, 0)), L"y");
    SendMessageW(Tree(), TVM_ENDEDITLABELNOW, FALSE, 0);
    PumpMessages();
    EXPECT_EQ(events.lines, std::vector<std::string>{"node label 1DG1=y"});
}

TEST_F(MainTree, EditThatIsOpenWhenACommandComesIsReportedWithItsText) {
    form.ShowWindow();
    view.tree.FinishLabelEdit(); // none is open
    view.tree.EditNodeLabel("1DG1");
    SetWindowTextW(reinterpret_cast<HWND>(SendMessageW(Tree(), TVM_GETEDITCONTROL, 0, 0)), L"y");
    view.tree.FinishLabelEdit();
    EXPECT_EQ(events.lines, std::vector<std::string>{"node label 1DG1=y"});
}

TEST_F(MainTree, RefusedEditDoesNotStart) {
    form.ShowWindow();
    events.mayEdit = false;
    view.tree.EditNodeLabel("1DG1");
    EXPECT_EQ(SendMessageW(Tree(), TVM_GETEDITCONTROL, 0, 0), 0);
}

TEST_F(MainTree, ShowsItsSelectionAlsoWithoutTheFocus) {
    EXPECT_NE(GetWindowLongPtrW(Tree(), GWL_STYLE) & TVS_SHOWSELALWAYS, 0);
}

} // namespace
