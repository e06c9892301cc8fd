// Rules: Editing commands
#include "platform/NamedCursor.h"
#include "tests/fakes/LibraryNodes.h"
#include "tests/ui/MainFormTest.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

using Lines = std::vector<std::string>;

// Presses or releases keys for this thread.
void SetKeys(std::initializer_list<int> keys, BYTE state) {
    std::array<BYTE, 256> all{};
    GetKeyboardState(all.data());
    for (const int key : keys)
        all.at(static_cast<std::size_t>(key)) = state;
    SetKeyboardState(all.data());
}

// The library 1D with the groups 1DG1 and 1DG2, and ten colors; the window is on the screen.
class MainDragging : public MainFormTest {
protected:
    MainDragging() {
        view.list.AddColumns({{"Name", "Name", 1500}});
        view.list.SetListViewMode(ListViewMode::Details);
        view.list.RowsChanged(10);
        view.tree.NodeAdded(NodeOfLibrary("1D", "Materialien"), "");
        view.tree.NodeAdded(NodeOfGroup("1DG1", "Metalle", "1D"), "");
        view.tree.NodeAdded(NodeOfGroup("1DG2", "Kunststoffe", "1D"), "1DG1");
        view.tree.NodeExpanded("1D");
        form.ShowWindow();
        view.list.SelectRow(2);
        PumpMessages();
        events.lines.clear();
    }

    [[nodiscard]] HWND List() const { return Child(IDC_lvColor); }
    [[nodiscard]] HWND Tree() const { return Child(IDC_tvColor); }
    [[nodiscard]] bool FollowsMouse() const { return GetCapture() == List(); }

    [[nodiscard]] POINT PlaceOfRow(int row) const {
        RECT place{LVIR_LABEL, 0, 0, 0};
        SendMessageW(List(), LVM_GETITEMRECT, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&place));
        return {place.left + 4, (place.top + place.bottom) / 2};
    }
    [[nodiscard]] HTREEITEM Next(UINT relation, HTREEITEM item = nullptr) const {
        return reinterpret_cast<HTREEITEM>(
            SendMessageW(Tree(), TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }
    // In pixels of the list, as its mouse messages tell it.
    [[nodiscard]] POINT OnNode(HTREEITEM item) const {
        RECT place{};
        std::memcpy(&place, &item, sizeof item); // as TVM_GETITEMRECT takes it
        SendMessageW(Tree(), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
        return InTree({place.left + 3, (place.top + place.bottom) / 2});
    }
    [[nodiscard]] POINT InTree(POINT at) const {
        MapWindowPoints(Tree(), List(), &at, 1);
        return at;
    }
    [[nodiscard]] POINT BesideTheNodes() const {
        RECT area{};
        GetClientRect(Tree(), &area);
        return InTree({area.right / 2, area.bottom / 2});
    }

    // As the list tells that a row is dragged.
    void StartDrag(int row = 2) const {
        NMLISTVIEW start{};
        start.hdr = {List(), IDC_lvColor, static_cast<UINT>(LVN_BEGINDRAG)};
        start.iItem = row;
        start.ptAction = PlaceOfRow(row);
        SendMessageW(form.Handle(), WM_NOTIFY, IDC_lvColor, reinterpret_cast<LPARAM>(&start));
    }
    void MoveTo(POINT at) const {
        SendMessageW(List(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    }
    void ReleaseAt(POINT at) const {
        SendMessageW(List(), WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    }
};

TEST_F(MainDragging, PressedAndMovedRowIsDraggedAndFollowsTheMouse) {
    const POINT from = PlaceOfRow(4);
    SendMessageW(List(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
    EXPECT_FALSE(FollowsMouse()) << "a click is no drag";
    MoveTo({from.x + 30, from.y});
    EXPECT_TRUE(FollowsMouse());
    EXPECT_EQ(events.lines, (Lines{"row 4", "drag start list"}));
    EXPECT_EQ(events.presses, 1);
    ReleaseAt(from);
    EXPECT_FALSE(FollowsMouse());
}

TEST_F(MainDragging, PressBesideTheRowsDragsNothing) {
    RECT area{};
    GetClientRect(List(), &area);
    SendMessageW(List(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(area.right - 4, area.bottom - 4));
    MoveTo({area.right - 60, area.bottom - 60});
    EXPECT_FALSE(FollowsMouse());
    EXPECT_EQ(events.lines, Lines{});
    EXPECT_EQ(events.presses, 1) << "but the list was pressed";
}

TEST_F(MainDragging, TellsWhatIsUnderThePointer) {
    StartDrag();
    MoveTo(OnNode(Next(TVGN_CHILD, Next(TVGN_ROOT))));
    MoveTo(BesideTheNodes());
    MoveTo(PlaceOfRow(5));
    MoveTo({-4000, 100});
    EXPECT_EQ(events.lines, (Lines{"drag start list", "drag move node 1DG1", "drag move",
                                   "drag move list", "drag move"}));
}

TEST_F(MainDragging, HeaderOfTheListBelongsToTheList) {
    StartDrag();
    MoveTo({20, 5});
    EXPECT_EQ(events.lines.back(), "drag move list");
}

TEST_F(MainDragging, WholeLineOfANodeCounts) {
    StartDrag();
    POINT at = OnNode(Next(TVGN_CHILD, Next(TVGN_ROOT)));
    RECT area{};
    GetClientRect(Tree(), &area);
    MapWindowPoints(List(), Tree(), &at, 1);
    MoveTo(InTree({area.right - 3, at.y}));
    EXPECT_EQ(events.lines.back(), "drag move node 1DG1");
}

TEST_F(MainDragging, EdgesOfTheTreeAreTold) {
    StartDrag();
    RECT area{};
    GetClientRect(Tree(), &area);
    MoveTo(InTree({area.right / 2, 2}));
    MoveTo(InTree({area.right / 2, area.bottom - 2}));
    EXPECT_EQ(events.lines,
              (Lines{"drag start list", "drag move node 1D top", "drag move bottom"}));
}

TEST_F(MainDragging, ReleaseDropsAndTheMouseIsFree) {
    StartDrag();
    ReleaseAt(OnNode(Next(TVGN_ROOT)));
    EXPECT_EQ(events.lines, (Lines{"drag start list", "drop node 1D top"}));
    EXPECT_FALSE(FollowsMouse());
    MoveTo({1, 1});
    EXPECT_EQ(events.lines.size(), 2U);
}

TEST_F(MainDragging, CtrlHeldAtTheStartIsTold) {
    SetKeys({VK_CONTROL}, 0x80);
    StartDrag();
    SetKeys({VK_CONTROL}, 0);
    EXPECT_EQ(events.lines, Lines{"drag start ctrl list"});
}

TEST_F(MainDragging, EscapeGivesItUp) {
    StartDrag();
    MSG escape{List(), WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    EXPECT_TRUE(form.TranslateKeys(escape));
    EXPECT_EQ(events.lines, (Lines{"drag start list", "drag cancelled"}));
    EXPECT_FALSE(FollowsMouse());
    static_cast<void>(form.TranslateKeys(escape));
    EXPECT_EQ(std::count(events.lines.begin(), events.lines.end(), "drag cancelled"), 1);
}

TEST_F(MainDragging, OtherKeysDoNothingMeanwhile) {
    StartDrag();
    for (const WPARAM key : {WPARAM{VK_DELETE}, WPARAM{VK_DOWN}, WPARAM{VK_F2}, WPARAM{'S'}}) {
        MSG message{List(), WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_TRUE(form.TranslateKeys(message));
    }
    EXPECT_EQ(events.lines, Lines{"drag start list"});
    EXPECT_TRUE(events.commands.empty());
}

TEST_F(MainDragging, LostMouseGivesItUp) {
    StartDrag();
    SetCapture(Tree());
    EXPECT_EQ(events.lines, (Lines{"drag start list", "drag cancelled"}));
    ReleaseCapture();
}

TEST_F(MainDragging, RightButtonGivesItUp) {
    StartDrag();
    SendMessageW(List(), WM_RBUTTONDOWN, MK_RBUTTON | MK_LBUTTON, 0);
    EXPECT_EQ(events.lines, (Lines{"drag start list", "drag cancelled"}));
}

TEST_F(MainDragging, ReleaseThatWasNotSeenGivesItUp) {
    StartDrag();
    SendMessageW(List(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(events.lines, (Lines{"drag start list", "drag cancelled"}));
}

TEST_F(MainDragging, RefusedDragDoesNotFollowTheMouse) {
    events.mayDrag = false;
    StartDrag();
    EXPECT_FALSE(FollowsMouse());
    EXPECT_FALSE(KillTimer(form.Handle(), DragTracker::kTimer));
}

TEST_F(MainDragging, TicksAreReportedUntilTheEnd) {
    StartDrag();
    MoveTo(BesideTheNodes());
    SendMessageW(form.Handle(), WM_TIMER, DragTracker::kTimer, 0);
    EXPECT_EQ(events.ticks, Lines{""});
    EXPECT_EQ(events.lines, (Lines{"drag start list", "drag move"})) << "no tick of the banner";
    view.drag.EndDrag();
    EXPECT_FALSE(KillTimer(form.Handle(), DragTracker::kTimer));
    EXPECT_FALSE(FollowsMouse());
    EXPECT_EQ(events.lines.size(), 2U) << "the program's own end is not reported";
}

TEST_F(MainDragging, InvisibleLabelStandsAtThePoint) {
    view.drag.ShowDrag(3000, 1500, DragMode::Move);
    RECT place{};
    GetWindowRect(Child(IDC_lblDrag), &place);
    MapWindowPoints(nullptr, form.Handle(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, form.Scale().ToPixels(3000));
    EXPECT_EQ(place.top, form.Scale().ToPixels(1500));
    EXPECT_EQ(GetWindowLongPtrW(Child(IDC_lblDrag), GWL_STYLE) & WS_VISIBLE, 0);
}

TEST_F(MainDragging, PointerHasAPictureOfItsOwnForEachMode) {
    std::vector<HCURSOR> pictures;
    StartDrag();
    for (const DragMode mode : {DragMode::Move, DragMode::Copy, DragMode::None}) {
        view.drag.ShowDrag(0, 0, mode);
        pictures.push_back(GetCursor());
        EXPECT_NE(pictures.back(), nullptr);
    }
    EXPECT_NE(pictures[0], pictures[1]);
    EXPECT_EQ(pictures[2], LoadCursorW(nullptr, IDC_NO));
    view.drag.EndDrag();
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(MainDragging, DropTargetIsMarkedWithoutASelection) {
    view.tree.NodeSelected("1D");
    view.drag.MarkDropNode("1DG2");
    const HTREEITEM first = Next(TVGN_CHILD, Next(TVGN_ROOT));
    EXPECT_EQ(Next(TVGN_DROPHILITE), Next(TVGN_NEXT, first));
    EXPECT_EQ(Next(TVGN_CARET), Next(TVGN_ROOT));
    view.drag.MarkDropNode("");
    EXPECT_EQ(Next(TVGN_DROPHILITE), nullptr);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(MainDragging, TreeScrollsByALineEachWay) {
    for (int group = 3; group < 100; ++group)
        view.tree.NodeAdded(NodeOfGroup("1DG" + std::to_string(group), "Gruppe", "1D"),
                            "1DG" + std::to_string(group - 1));
    const HTREEITEM top = Next(TVGN_FIRSTVISIBLE);
    view.drag.ScrollTree(TreeEdge::Bottom);
    EXPECT_EQ(Next(TVGN_FIRSTVISIBLE), Next(TVGN_NEXTVISIBLE, top));
    view.drag.ScrollTree(TreeEdge::Top);
    EXPECT_EQ(Next(TVGN_FIRSTVISIBLE), top);
}

// The pointer's picture at a share of its width and height.
COLORREF OfPointer(double share) {
    ICONINFO parts{};
    if (GetIconInfo(GetCursor(), &parts) == FALSE)
        return CLR_INVALID;
    const BitmapHandle mask(parts.hbmMask);
    const BitmapHandle color(parts.hbmColor);
    BITMAP described{};
    GetObjectW(color.Get(), sizeof described, &described);
    const auto at = static_cast<int>(share * described.bmWidth);
    const MemoryDevice memory(CreateCompatibleDC(nullptr));
    const HGDIOBJ before = SelectObject(memory.Get(), color.Get());
    const COLORREF pixel = GetPixel(memory.Get(), at, at);
    SelectObject(memory.Get(), before);
    return pixel;
}

TEST_F(MainDragging, PointerCarriesTheColorWhereTheListShowsColors) {
    constexpr double kOnTheColor = 0.5;
    events.rowValues = {{2, {250, 10, 10, 100, 100, 0, 0, 0, 50}}};
    for (const bool shown : {false, true}) {
        view.list.ShowRowColors(shown);
        StartDrag();
        view.drag.ShowDrag(0, 0, DragMode::Move);
        const COLORREF pixel = OfPointer(kOnTheColor);
        EXPECT_EQ(GetRValue(pixel) > 200 && GetGValue(pixel) < 30, shown) << std::hex << pixel;
        EXPECT_NE(OfPointer(0.1), CLR_INVALID);
        view.drag.EndDrag();
        PumpMessages();
    }
    events.lines.clear();
}

TEST(NamedCursor, UnknownPictureIsNone) {
    EXPECT_FALSE(LoadNamedCursor("NoSuchPicture", 32));
    EXPECT_FALSE(LoadNamedCursor("NoSuchPicture", 32, [](HDC) {}));
    EXPECT_TRUE(LoadNamedCursor("DragMoveColor", 48, [](HDC) {}));
    EXPECT_TRUE(LoadNamedCursor("DragCopyColor", 32, [](HDC) {}));
    EXPECT_TRUE(LoadNamedCursor("DragMove", 48));
}

} // namespace
