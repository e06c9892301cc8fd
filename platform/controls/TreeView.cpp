#include "platform/controls/TreeView.h"

#include "common/ValueRestorer.h"
#include "platform/ClassProcedure.h"
#include "platform/DpiScale.h"
#include "platform/Utf16.h"

#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kLongestLabel = 32768; // characters

constexpr ControlKind kTreeView{"TreeView", WC_TREEVIEWW, ""};

constexpr DWORD kTreeStyle = WS_VISIBLE | WS_TABSTOP | TVS_HASBUTTONS | TVS_LINESATROOT |
                             TVS_EDITLABELS | TVS_SHOWSELALWAYS | TVS_NOTOOLTIPS;

constexpr int kIconSize = 16;

constexpr UINT kDrawAgainMessage = WM_APP + 20;

// Whether the message may come before the nodes that were just added are arranged and drawn.
bool MayComeBeforeDrawing(UINT message) noexcept {
    const bool isOfTree = message >= TV_FIRST && message < TV_FIRST + 0x100;
    const bool isInput = (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
                         (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
    return message == TVM_INSERTITEMW || !(isOfTree || isInput || message == kDrawAgainMessage);
}

} // namespace

TreeView::TreeView(ControlHost& host, const ControlPlace& place, IconList& images)
    : Control(host, kTreeView, place, kTreeStyle, WS_EX_CLIENTEDGE), images_(images) {
    Send(TVM_SETEXTENDEDSTYLE, TVS_EX_DOUBLEBUFFER, TVS_EX_DOUBLEBUFFER);
    ApplyColors();
    TreeView::ApplyScale();
    TipShowsCutText();
}

void TreeView::ApplyScale() {
    Control::ApplyScale();
    images_.Fit(Scale().FromDesign(kIconSize));
    Send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images_.Handle()));
    Send(TVM_SETITEMHEIGHT, static_cast<WPARAM>(-1));
}

// Not every theme fills the area beside the nodes as a list's is.
void TreeView::ApplyColors() {
    Send(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(GetSysColor(COLOR_WINDOW)));
}

void TreeView::AddNode(const Node& added) {
    const ValueRestorer inserting(inserting_, true);
    const auto place = items_.emplace(added.key, nullptr).first;
    std::wstring wide = ToUtf16(added.text);
    TVINSERTSTRUCTW node{};
    node.hParent = added.parent.empty() ? TVI_ROOT : Find(added.parent);
    PauseDrawing(node.hParent);
    node.hInsertAfter = added.previous.empty() ? TVI_FIRST : Find(added.previous);
    node.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    node.item.pszText = wide.data();
    node.item.iImage = images_.IndexOf(added.image);
    node.item.iSelectedImage = node.item.iImage;
    node.item.lParam = reinterpret_cast<LPARAM>(&place->first);
    // Straight to the class: nothing else has to see it, and for thousands of nodes the way there
    // takes longer than all the rest.
    place->second = reinterpret_cast<HTREEITEM>(
        AnswerOfClass({Handle(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&node)}));
}

// Nodes often come in thousands; to arrange and draw the tree after each would take longer than all
// the rest.  The tree is drawn again before anything but the next node.
void TreeView::PauseDrawing(HTREEITEM parent) {
    if (std::exchange(drawingPaused_, true)) {
        Fold(parent);
        return;
    }
    Send(WM_SETREDRAW, FALSE);
    PostMessageW(Handle(), kDrawAgainMessage, 0, 0);
}

// The platform measures each node that is added below an open one, but all nodes of one that is
// opened together.  The selection must not go: a closed node takes that of the nodes below it.
void TreeView::Fold(HTREEITEM parent) {
    if (folded_ != nullptr || parent == TVI_ROOT)
        return;
    const auto parentOfSelected = reinterpret_cast<HTREEITEM>(
        Send(TVM_GETNEXTITEM, TVGN_PARENT, reinterpret_cast<LPARAM>(Selected())));
    const LRESULT state =
        Send(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(parent), LPARAM{TVIS_EXPANDED});
    if (parentOfSelected == parent || (state & TVIS_EXPANDED) == 0)
        return;
    folded_ = parent;
    Send(TVM_EXPAND, TVE_COLLAPSE, reinterpret_cast<LPARAM>(parent));
}

void TreeView::ResumeDrawing() {
    drawingPaused_ = false;
    Send(WM_SETREDRAW, TRUE);
    if (const HTREEITEM folded = std::exchange(folded_, nullptr))
        Send(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(folded));
    InvalidateRect(Handle(), nullptr, TRUE);
}

void TreeView::RemoveNode(const std::string& key) {
    const HTREEITEM item = Find(key);
    if (item == nullptr)
        return;
    const bool before = std::exchange(silent_, true);
    Forget(item);
    Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
    silent_ = before;
}

void TreeView::Forget(HTREEITEM item) {
    for (auto child = reinterpret_cast<HTREEITEM>(
             Send(TVM_GETNEXTITEM, TVGN_CHILD, reinterpret_cast<LPARAM>(item)));
         child != nullptr; child = reinterpret_cast<HTREEITEM>(
                               Send(TVM_GETNEXTITEM, TVGN_NEXT, reinterpret_cast<LPARAM>(child))))
        Forget(child);
    const std::string key = KeyOf(item);
    TVITEMW detached{};
    detached.mask = TVIF_HANDLE | TVIF_PARAM;
    detached.hItem = item;
    Send(TVM_SETITEMW, 0, &detached);
    items_.erase(key);
}

void TreeView::SetNodeText(const std::string& key, const std::string& text) {
    std::wstring wide = ToUtf16(text);
    TVITEMW item{};
    item.mask = TVIF_HANDLE | TVIF_TEXT;
    item.hItem = Find(key);
    item.pszText = wide.data();
    Send(TVM_SETITEMW, 0, &item);
}

void TreeView::ExpandNode(const std::string& key) {
    Send(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(Find(key)));
}

void TreeView::SelectNode(const std::string& key) {
    const bool before = std::exchange(silent_, true);
    Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(Find(key)));
    silent_ = before;
}

void TreeView::EditLabel(const std::string& key) {
    Focus();
    Send(TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(Find(key)));
}

void TreeView::FinishEdit() {
    Send(TVM_ENDEDITLABELNOW, FALSE);
}

std::string TreeView::SelectedKey() const {
    return KeyOf(Selected());
}

HTREEITEM TreeView::Find(const std::string& key) const {
    const auto found = items_.find(key);
    return found != items_.end() ? found->second : nullptr;
}

std::string TreeView::KeyOf(HTREEITEM item) const {
    TVITEMW info{};
    info.mask = TVIF_HANDLE | TVIF_PARAM;
    info.hItem = item;
    if (item == nullptr || Send(TVM_GETITEMW, 0, &info) == FALSE || info.lParam == 0)
        return {};
    return *reinterpret_cast<const std::string*>(info.lParam);
}

HTREEITEM TreeView::Selected() const {
    return reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, TVGN_CARET));
}

HTREEITEM TreeView::ItemAt(POINT point) const {
    TVHITTESTINFO hit{};
    hit.pt = point;
    Send(TVM_HITTEST, 0, &hit);
    return (hit.flags & TVHT_ONITEM) != 0 ? hit.hItem : nullptr;
}

HTREEITEM TreeView::LineAt(POINT point) const {
    constexpr UINT kBesideTheText = TVHT_ONITEMINDENT | TVHT_ONITEMBUTTON | TVHT_ONITEMRIGHT;
    TVHITTESTINFO hit{};
    hit.pt = point;
    Send(TVM_HITTEST, 0, &hit);
    return (hit.flags & (TVHT_ONITEM | kBesideTheText)) != 0 ? hit.hItem : nullptr;
}

std::string TreeView::KeyAtLine(POINT screen) const {
    ScreenToClient(Handle(), &screen);
    return KeyOf(LineAt(screen));
}

RECT TreeView::TextPlaceOf(HTREEITEM item) const {
    RECT bounds{};
    std::memcpy(&bounds, &item, sizeof(void*)); // as TVM_GETITEMRECT takes it
    return Send(TVM_GETITEMRECT, TRUE, &bounds) != FALSE ? bounds : RECT{};
}

std::string TreeView::TextOf(HTREEITEM item) const {
    std::vector<wchar_t> text(kLongestLabel);
    TVITEMW whole{};
    whole.mask = TVIF_HANDLE | TVIF_TEXT;
    whole.hItem = item;
    whole.pszText = text.data();
    whole.cchTextMax = static_cast<int>(text.size());
    Send(TVM_GETITEMW, 0, &whole);
    return ToUtf8(text.data());
}

int TreeView::LineHeight() const {
    return static_cast<int>(Send(TVM_GETITEMHEIGHT));
}

void TreeView::MarkDropTarget(const std::string& key) {
    Send(TVM_SELECTITEM, TVGN_DROPHILITE, reinterpret_cast<LPARAM>(Find(key)));
}

void TreeView::ScrollLine(bool down) {
    Send(WM_VSCROLL, static_cast<WPARAM>(down ? SB_LINEDOWN : SB_LINEUP));
}

MessageResult TreeView::OnNotify(NMHDR& header) {
    switch (header.code) {
    case TVN_SELCHANGEDW:
        if (const std::string key = SelectedKey(); !silent_ && !key.empty())
            Raise(onClick, key);
        return 0;
    case TVN_KEYDOWN:
        if (reinterpret_cast<const NMTVKEYDOWN&>(header).wVKey == VK_F2)
            Raise(onEditRequested);
        return 0;
    case TVN_BEGINLABELEDITW:
        if (mayEdit && !mayEdit())
            return TRUE; // no edit
        BeginLabelEdit(reinterpret_cast<const NMTVDISPINFOW&>(header).item.hItem);
        return FALSE;
    case TVN_ENDLABELEDITW:
        EndLabelEdit(reinterpret_cast<const NMTVDISPINFOW&>(header));
        return FALSE; // the text is shown when the program sets it
    default:
        return {};
    }
}

void TreeView::BeginLabelEdit(HTREEITEM item) {
    label_.Begin(reinterpret_cast<HWND>(Send(TVM_GETEDITCONTROL)), TextOf(item));
}

void TreeView::EndLabelEdit(const NMTVDISPINFOW& info) {
    const std::optional<std::string> text = label_.End();
    if (text && info.item.pszText != nullptr)
        Raise(onLabelEdited, KeyOf(info.item.hItem), *text);
}

// Over a node only its name, when it is cut off: anything else would hide what is to be clicked.
std::string TreeView::TipText() const {
    const HTREEITEM item = LineAt(Pointer());
    if (item == nullptr)
        return Control::TipText();
    RECT area{};
    GetClientRect(Handle(), &area);
    const RECT name = TextPlaceOf(item);
    return name.left < area.left || name.right > area.right ? TextOf(item) : std::string();
}

ControlTip TreeView::Tip() const {
    const std::string key = tipOf ? KeyOf(LineAt(Pointer())) : std::string();
    return key.empty() ? Control::Tip() : tipOf(key);
}

MessageResult TreeView::OnMessage(const WindowMessage& message) {
    if (drawingPaused_ && !inserting_ && !MayComeBeforeDrawing(message.id))
        ResumeDrawing();
    switch (message.id) {
    case kDrawAgainMessage:
        return 0;
    case WM_MOUSEMOVE:
        TipIsFor(reinterpret_cast<LPARAM>(LineAt(PointOf(message))));
        return {};
    case WM_LBUTTONDOWN: {
        // A click on the selected node changes nothing in the control, but it is a click.
        const HTREEITEM hit = ItemAt(PointOf(message));
        const bool again = hit != nullptr && hit == Selected();
        const std::string key = KeyOf(hit);
        const LRESULT result = Default(message);
        if (again && !key.empty())
            Raise(onClick, key);
        return result;
    }
    case WM_SETFOCUS:
        return TakeFocus(message);
    case WM_SYSCOLORCHANGE:
        ApplyColors();
        return {};
    case WM_RBUTTONDOWN:
        Focus();
        if (const HTREEITEM hit = ItemAt(PointOf(message)))
            Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(hit));
        OpenContextMenu(message);
        return 0;
    case WM_CONTEXTMENU:
        if (message.lParam == -1) // the keyboard's menu key
            OpenContextMenu(message);
        return 0;
    case WM_SYSKEYDOWN: // Wine's tree does not make the message above of it
        if (message.wParam != VK_F10 || GetKeyState(VK_SHIFT) >= 0)
            return {};
        SendMessageW(message.window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(message.window), -1);
        return 0;
    default:
        return {};
    }
}

// The control would select its first node of its own accord when none is selected.
LRESULT TreeView::TakeFocus(const WindowMessage& message) {
    const bool before = std::exchange(silent_, true);
    const bool selected = Selected() != nullptr;
    const LRESULT result = Default(message);
    if (!selected)
        SelectNode({});
    silent_ = before;
    return result;
}

void TreeView::OpenContextMenu(const WindowMessage& message) {
    POINT at = PointOf(message);
    if (message.id == WM_CONTEXTMENU) {
        const RECT name = TextPlaceOf(Selected());
        at = {name.left, name.bottom};
    }
    ClientToScreen(message.window, &at);
    Raise(onContextMenu, at);
}
