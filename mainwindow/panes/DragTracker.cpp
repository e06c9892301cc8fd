#include "mainwindow/panes/DragTracker.h"

#include "platform/Form.h"

#include <algorithm>

namespace {

constexpr UINT kTick = 100; // milliseconds

// Design pixels.
constexpr int kCursorSize = 32;

// Where the dragged color stands behind the pointer, on the grid that its icon is drawn on.
constexpr int kCursorGrid = 24;
constexpr int kBallStart = 7;
constexpr int kBallSize = 15;

HeldKeys KeysHeld() {
    const auto isHeld = [](int virtualKey) { return GetKeyState(virtualKey) < 0; };
    return {isHeld(VK_SHIFT), isHeld(VK_CONTROL), isHeld(VK_MENU)};
}

} // namespace

void DragTracker::Attach(DragEvents& events) {
    events_ = &events;
    ListView& list = controls_.list;
    list.onPress = [&events] { events.ListPressed(); };
    list.onDragStart = [this, &events](POINT at) {
        LoadCursors();
        const bool starts = events.DragStarted(KeysHeld(), PointAt(at));
        if (starts)
            SetTimer(form_.Handle(), kTimer, kTick, nullptr);
        return starts;
    };
    list.Drag().onMove = [this, &events] { events.DragMoved(Point()); };
    list.Drag().onDrop = [this, &events] { events.DragDropped(Point()); };
    list.Drag().onCancel = [&events] { events.DragCancelled(); };
}

void DragTracker::Tick() {
    if (events_ != nullptr)
        events_->DragTicked(Point());
}

void DragTracker::LoadCursors() {
    const int size = form_.Scale().FromDesign(kCursorSize);
    if (!controls_.list.HasOwnPictures()) {
        move_ = LoadNamedCursor("DragMove", size);
        copy_ = LoadNamedCursor("DragCopy", size);
        return;
    }
    const auto paintColor = [this, size](HDC device) {
        const int ball = MulDiv(size, kBallSize, kCursorGrid);
        const int start = MulDiv(size, kBallStart, kCursorGrid);
        controls_.list.PaintSelected(device, {start, start, start + ball, start + ball});
    };
    move_ = LoadNamedCursor("DragMoveColor", size, paintColor);
    copy_ = LoadNamedCursor("DragCopyColor", size, paintColor);
}

void DragTracker::ShowDrag(float left, float top, DragMode picture) {
    const RECT before = controls_.label.Bounds();
    const POINT at = {form_.Scale().ToPixels(left), form_.Scale().ToPixels(top)};
    controls_.label.Place({at.x, at.y, at.x + WidthOf(before), at.y + HeightOf(before)});
    SetCursor(CursorOf(picture));
}

HCURSOR DragTracker::CursorOf(DragMode picture) const {
    switch (picture) {
    case DragMode::Move:
        return move_.Get();
    case DragMode::Copy:
        return copy_.Get();
    default:
        return LoadCursorW(nullptr, IDC_NO);
    }
}

void DragTracker::MarkDropNode(const std::string& key) {
    controls_.tree.MarkDropTarget(key);
}

void DragTracker::ScrollTree(TreeEdge towards) {
    controls_.tree.ScrollLine(towards == TreeEdge::Bottom);
}

void DragTracker::EndDrag() {
    KillTimer(form_.Handle(), kTimer);
    controls_.list.Drag().End();
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

bool DragTracker::TakeKey(const MSG& message) {
    if (!controls_.list.Drag().IsUnderWay())
        return false;
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
        controls_.list.Drag().Cancel();
    return true;
}

DragPoint DragTracker::Point() const {
    return PointAt(controls_.list.Drag().Pointer());
}

DragPoint DragTracker::PointAt(POINT screen) const {
    POINT inForm = screen;
    ScreenToClient(form_.Handle(), &inForm);
    const HWND under = WindowFromPoint(screen);
    DragPoint at;
    at.left = form_.Scale().ToTwips(static_cast<int>(inForm.x));
    at.top = form_.Scale().ToTwips(static_cast<int>(inForm.y));
    at.isOverList = under == controls_.list.Handle() ||
                    IsChild(controls_.list.Handle(), under) != FALSE; // its header
    if (under == controls_.tree.Handle()) {
        at.node = controls_.tree.KeyAtLine(screen);
        at.edge = EdgeAt(screen);
    }
    return at;
}

TreeEdge DragTracker::EdgeAt(POINT screen) const {
    RECT area{};
    GetClientRect(controls_.tree.Handle(), &area);
    ScreenToClient(controls_.tree.Handle(), &screen);
    const LONG margin = std::min(LONG{controls_.tree.LineHeight()}, area.bottom / 3);
    if (screen.y < margin)
        return TreeEdge::Top;
    return screen.y >= area.bottom - margin ? TreeEdge::Bottom : TreeEdge::None;
}
