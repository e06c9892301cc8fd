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
    const std::vector<HTREEITEM> roots = Siblings(Next(TVGN_ROOT, nullptr));
    return Siblings(Next(TVGN_CHILD, roots.at(root)));
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
    const std::vector<HTREEITEM> roots = Siblings(Next(TVGN_ROOT, nullptr));
    if (root >= roots.size())
        throw std::runtime_error("No main node " + std::to_string(root));
    Click(roots[root]);
}

void RemoteTree::ClickChild(std::size_t root, const std::string& text) const {
    for (HTREEITEM item : ChildItems(root))
        if (TextOf(item) == text) {
            Click(item);
            return;
        }
    throw std::runtime_error("No node " + text);
}

void RemoteTree::Click(HTREEITEM item) const {
    SendMessageW(window_.Handle(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    const RemoteMemory memory(window_.Handle());
    RECT bounds{};
    std::memcpy(&bounds, &item, sizeof item); // the message takes the item in the rectangle's place
    memory.Send(TVM_GETITEMRECT, TRUE, bounds);
    RealInput::Click(window_.ToScreen(CentreOf(bounds)));
}

RemoteWindow RemoteTree::LabelEdit() const {
    return RemoteWindow(
        reinterpret_cast<HWND>(SendMessageW(window_.Handle(), TVM_GETEDITCONTROL, 0, 0)));
}
