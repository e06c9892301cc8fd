#include "library/LibraryTree.h"

#include "common/RuntimeError.h"

#include <algorithm>
#include <utility>

void LibraryTree::AddMainNode(const std::string& key, const std::string& text) {
    LibraryNode node;
    node.kind = NodeKind::Library;
    node.id = ++lastId_;
    node.key = key;
    node.text = text;
    Insert(node, mainNodes_);
}

void LibraryTree::AddGroup(const std::string& mainKey, const std::string& key,
                           const std::string& text) {
    LibraryNode node;
    node.kind = NodeKind::Group;
    node.key = key;
    node.text = text;
    node.parent = mainKey;
    LibraryNode& mainNode = Existing(mainKey);
    Insert(node, mainNode.children);
    // A tree control cannot expand a node before it has a child.
    if (mainNode.expanded && mainNode.children.size() == 1)
        Expand(mainKey);
}

void LibraryTree::Insert(const LibraryNode& node, std::vector<std::string>& siblings) {
    const auto [place, added] = nodes_.try_emplace(node.key, node);
    if (!added)
        throw RuntimeError(ErrorNumber::DuplicateKey, ErrorTexts::GroupNumberTaken);
    siblings.push_back(node.key);
    if (observer_)
        observer_->NodeAdded(node);
}

void LibraryTree::Remove(const std::string& key) {
    const LibraryNode node = At(key);
    const bool selectionGoes = HoldsSelection(node);
    const std::string nextSelection = SelectionWithout(node);
    for (const std::string& child : node.children)
        nodes_.erase(child);
    nodes_.erase(key);
    std::erase(node.parent.empty() ? mainNodes_ : Existing(node.parent).children, key);
    if (selectionGoes)
        selected_ = nextSelection;
    if (!observer_)
        return;
    observer_->NodeRemoved(key);
    if (selectionGoes)
        observer_->NodeSelected(selected_);
}

const LibraryNode* LibraryTree::Find(const std::string& key) const {
    const auto found = nodes_.find(key);
    return found == nodes_.end() ? nullptr : &found->second;
}

bool LibraryTree::IsGroup(const std::string& key) const {
    const LibraryNode* node = Find(key);
    return node != nullptr && node->kind == NodeKind::Group;
}

const LibraryNode& LibraryTree::At(const std::string& key) const {
    const LibraryNode* node = Find(key);
    if (!node)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, ErrorTexts::NoSuchNode, {Quoted(key)});
    return *node;
}

LibraryNode& LibraryTree::Existing(const std::string& key) {
    return const_cast<LibraryNode&>(std::as_const(*this).At(key));
}

void LibraryTree::SetText(const std::string& key, const std::string& text) {
    LibraryNode& node = Existing(key);
    if (node.text == text)
        return;
    node.text = text;
    if (observer_)
        observer_->NodeTextChanged(key, text);
}

void LibraryTree::SetFile(const std::string& mainKey, const std::string& path) {
    Existing(mainKey).file = path;
}

void LibraryTree::SetSource(const std::string& mainKey, const std::string& path) {
    Existing(mainKey).source = path;
}

void LibraryTree::SetUnsaved(const std::string& mainKey) {
    Existing(mainKey).file.reset();
}

void LibraryTree::RememberColor(const std::string& groupKey, const std::string& colorKey) {
    Existing(groupKey).lastColor = colorKey;
}

void LibraryTree::Expand(const std::string& key) {
    Existing(key).expanded = true;
    if (observer_)
        observer_->NodeExpanded(key);
}

void LibraryTree::Select(const std::string& key) {
    selected_ = At(key).key;
    if (observer_)
        observer_->NodeSelected(selected_);
}

const std::vector<std::string>& LibraryTree::SiblingsOf(const LibraryNode& node) const {
    return node.parent.empty() ? mainNodes_ : At(node.parent).children;
}

bool LibraryTree::HoldsSelection(const LibraryNode& node) const {
    return selected_ == node.key || std::ranges::count(node.children, selected_) > 0;
}

std::string LibraryTree::SelectionWithout(const LibraryNode& node) const {
    const std::vector<std::string>& siblings = SiblingsOf(node);
    const auto place = std::ranges::find(siblings, node.key);
    if (std::next(place) != siblings.end())
        return *std::next(place);
    return place != siblings.begin() ? *std::prev(place) : node.parent;
}
