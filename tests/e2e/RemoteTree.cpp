#include "tests/e2e/RemoteTree.h"

#include "platform/Utf16.h"
#include "tests/e2e/RealInput.h"
#include "tests/e2e/RemoteMemory.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

HTREEITEM RemoteTree::Next(WPARAM relation, HTREEITEM item) const {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(window_.Handle(), TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

std::vector<HTREEITEM> RemoteTree::Siblings(HTREEITEM first) const {
    std::vector<HTREEITEM> items;
    for (HTREEITEM item = first; item != nullptr; item = Next(TVGN_NEXT, item))
        items.push_back(item);
    return items;
}

std::vector<HTREEITEM> RemoteTree::ChildItems(std::size_t root) const {
    return Siblings(Next(TVGN_CHILD, RootItem(root)));
}

std::vector<std::string> RemoteTree::Roots() const {
    return TextsOf(Siblings(Next(TVGN_ROOT, nullptr)));
}

std::vector<std::string> RemoteTree::Children(std::size_t root) const {
    return TextsOf(ChildItems(root));
}

std::string RemoteTree::SelectedPath() const {
    std::string path;
    HTREEITEM top = nullptr;
    for (HTREEITEM item = Next(TVGN_CARET, nullptr); item != nullptr;
         item = Next(TVGN_PARENT, item)) {
        path.insert(0, "/" + TextOf(item));
        top = item;
    }
    if (top == nullptr)
        return path;
    const std::vector<HTREEITEM> roots = Siblings(Next(TVGN_ROOT, nullptr));
    return std::to_string(std::find(roots.begin(), roots.end(), top) - roots.begin()) + path;
}

std::vector<std::string> RemoteTree::TextsOf(const std::vector<HTREEITEM>& items) const {
    std::vector<std::string> texts;
    for (HTREEITEM item : items)
        texts.push_back(TextOf(item));
    return texts;
}

std::string RemoteTree::TextOf(HTREEITEM item) const {
    const RemoteMemory memory(window_.Handle());
    TVITEMW request{};
    request.mask = TVIF_HANDLE | TVIF_TEXT;
    request.hItem = item;
    request.pszText = memory.TextAddress();
    request.cchTextMax = static_cast<int>(RemoteMemory::kTextCharacters);
    memory.Send(TVM_GETITEMW, 0, request);
    return ToUtf8(memory.Text());
}

void RemoteTree::ClickRoot(std::size_t root) const {
    RealInput::Click(PointOfRoot(root));
}

HTREEITEM RemoteTree::RootItem(std::size_t root) const {
    return Siblings(Next(TVGN_ROOT, nullptr)).at(root);
}

HTREEITEM RemoteTree::ChildItem(std::size_t root, const std::string& text) const {
    for (HTREEITEM item : ChildItems(root))
        if (TextOf(item) == text)
            return item;
    throw std::runtime_error("No node " + text);
}

void RemoteTree::ClickChild(std::size_t root, const std::string& text) const {
    RealInput::Click(PointOfChild(root, text));
}

POINT RemoteTree::PointOfRoot(std::size_t root) const {
    return PointOf(RootItem(root));
}

POINT RemoteTree::PointOfChild(std::size_t root, const std::string& text) const {
    return PointOf(ChildItem(root, text));
}

POINT RemoteTree::PointBelowTheNodes() const {
    const RECT last = BoundsOf(Next(TVGN_LASTVISIBLE, nullptr));
    RECT area{};
    GetClientRect(window_.Handle(), &area);
    return window_.ToScreen({area.right / 2, (last.bottom + area.bottom) / 2});
}

std::string RemoteTree::DropTarget() const {
    HTREEITEM marked = Next(TVGN_DROPHILITE, nullptr);
    return marked != nullptr ? TextOf(marked) : std::string();
}

std::string RemoteTree::FirstVisible() const {
    return TextOf(Next(TVGN_FIRSTVISIBLE, nullptr));
}

bool RemoteTree::IsExpanded(std::size_t root) const {
    const LRESULT state = SendMessageW(window_.Handle(), TVM_GETITEMSTATE,
                                       reinterpret_cast<WPARAM>(RootItem(root)), TVIS_EXPANDED);
    return (state & TVIS_EXPANDED) != 0;
}

void RemoteTree::Collapse(std::size_t root) const {
    SendMessageW(window_.Handle(), TVM_EXPAND, TVE_COLLAPSE,
                 reinterpret_cast<LPARAM>(RootItem(root)));
}

RECT RemoteTree::BoundsOf(HTREEITEM item) const {
    const RemoteMemory memory(window_.Handle());
    RECT bounds{};
    std::memcpy(&bounds, &item, sizeof item); // the message takes the item in the rectangle's place
    memory.Send(TVM_GETITEMRECT, TRUE, bounds);
    return bounds;
}

POINT RemoteTree::PointOf(HTREEITEM item) const {
    SendMessageW(window_.Handle(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    return window_.ToScreen(CentreOf(BoundsOf(item)));
}

RemoteWindow RemoteTree::LabelEdit() const {
    return RemoteWindow(
        reinterpret_cast<HWND>(SendMessageW(window_.Handle(), TVM_GETEDITCONTROL, 0, 0)));
}
