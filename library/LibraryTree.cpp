#include "library/LibraryTree.h"

#include "common/RuntimeError.h"
#include "library/LibraryKeys.h"

#include <algorithm>
#include <utility>

void LibraryTree::AddMainNode(const std::string& key, const std::string& text) {
    LibraryNode node;
    node.kind = NodeKind::Library;
    node.id = ++lastId_;
    node.life = std::make_shared<const LibraryId>(node.id);
    node.key = key;
    node.text = text;
    Add(node, mainNodes_);
}

void LibraryTree::AddGroup(const std::string& mainKey, const std::string& key,
                           const std::string& text) {
    LibraryNode node;
    node.kind = NodeKind::Group;
    node.key = key;
    node.text = text;
    node.parent = mainKey;
    Add(node, Existing(mainKey).children);
}

void LibraryTree::Add(const LibraryNode& node, std::vector<std::string>& siblings) {
    Insert(node, siblings, siblings.size());
    if (journal_)
        journal_->NodeAdded(node);
}

void LibraryTree::Insert(const LibraryNode& node, std::vector<std::string>& siblings,
                         std::size_t place) {
    const auto [entry, added] = nodes_.try_emplace(node.key, node);
    if (!added)
        throw RuntimeError(ErrorNumber::DuplicateKey, ErrorTexts::GroupNumberTaken);
    NoteChange(node.parent.empty() ? entry->second : Existing(node.parent));
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(place), node.key);
    if (observer_)
        observer_->NodeAdded(node, place == 0 ? std::string() : siblings[place - 1]);
    // A tree control cannot expand a node before it has a child.
    if (siblings.size() == 1 && !node.parent.empty() && At(node.parent).expanded)
        Expand(node.parent);
}

void LibraryTree::Remove(const std::string& key) {
    RemovedNode removed = TakeOut(key);
    if (journal_)
        journal_->NodeRemoved(std::move(removed));
}

RemovedNode LibraryTree::TakeOut(const std::string& key) {
    const LibraryNode& node = At(key);
    const bool selectionGoes = HoldsSelection(node);
    const std::string nextSelection = SelectionWithout(node);
    RemovedNode removed{.node = node, .ref = RefOf(key)};
    for (const std::string& child : node.children)
        removed.groups.push_back(std::move(nodes_.extract(child).mapped()));
    nodes_.erase(removed.node.key);
    const std::string& parent = removed.node.parent;
    std::vector<std::string>& siblings = parent.empty() ? mainNodes_ : Existing(parent).children;
    const auto place = std::ranges::find(siblings, removed.node.key);
    removed.place = static_cast<std::size_t>(place - siblings.begin());
    siblings.erase(place);
    if (!parent.empty())
        NoteChange(Existing(parent));
    if (selectionGoes)
        selected_ = nextSelection;
    if (observer_) {
        observer_->NodeRemoved(removed.node.key);
        if (selectionGoes)
            observer_->NodeSelected(selected_);
    }
    return removed;
}

void LibraryTree::PutBack(RemovedNode removed, const std::string& parentKey) {
    const std::string before = removed.node.key;
    LibraryNode& node = removed.node;
    const std::string parentBefore = std::exchange(node.parent, parentKey);
    if (node.kind == NodeKind::Group)
        node.key = parentKey + LibraryKeys::Within(parentBefore, before);
    else if (Find(node.key))
        node.key = LowestFreeMainKey();
    if (const std::string last = LibraryKeys::Within(before, node.lastColor); !last.empty())
        node.lastColor = node.key + last;
    node.children.clear();
    std::vector<std::string>& siblings =
        parentKey.empty() ? mainNodes_ : Existing(parentKey).children;
    Insert(node, siblings, std::min(removed.place, siblings.size()));
    std::size_t place = 0;
    for (LibraryNode& group : removed.groups)
        PutBack({.node = std::move(group), .place = place++}, node.key);
}

NodeRef LibraryTree::RefOf(const std::string& key) const {
    const LibraryNode& node = At(key);
    if (node.kind == NodeKind::Library)
        return {node.id};
    return {At(node.parent).id, LibraryKeys::Within(node.parent, key)};
}

std::string LibraryTree::KeyOf(const NodeRef& ref) const {
    const auto library = std::ranges::find_if(
        mainNodes_, [&](const std::string& key) { return At(key).id == ref.library; });
    if (library == mainNodes_.end())
        return {};
    std::string key = *library + ref.group;
    return Find(key) ? key : std::string();
}

std::string LibraryTree::LowestFreeMainKey() const {
    std::size_t number = 0;
    while (Find(LibraryKeys::OfLibrary(number)))
        ++number;
    return LibraryKeys::OfLibrary(number);
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
    const std::string before = std::exchange(node.text, text);
    NoteChange(node);
    if (journal_)
        journal_->NodeRenamed(key, before);
    if (observer_)
        observer_->NodeTextChanged(key, text);
}

void LibraryTree::SetFile(const std::string& mainKey, const std::string& path) {
    ChangeFile(mainKey, path);
}

void LibraryTree::ChangeFile(const std::string& mainKey, std::optional<std::string> path) {
    const std::optional<std::string> before =
        std::exchange(Existing(mainKey).file, std::move(path));
    if (journal_)
        journal_->FileChanged(mainKey, before);
}

void LibraryTree::SetSource(const std::string& mainKey, const std::string& path) {
    Existing(mainKey).source = path;
}

void LibraryTree::SetUnsaved(const std::string& mainKey) {
    ChangeFile(mainKey, {});
}

void LibraryTree::RememberColor(const std::string& groupKey, const std::string& colorKey) {
    const std::string before = std::exchange(Existing(groupKey).lastColor, colorKey);
    if (journal_)
        journal_->ColorRemembered(groupKey, before);
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
