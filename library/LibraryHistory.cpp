#include "library/LibraryHistory.h"

#include "library/LibraryKeys.h"

#include <algorithm>
#include <utility>

LibraryHistory::LibraryHistory(LibraryTree& tree, ColorTable& colors)
    : tree_(tree), colors_(colors) {
    tree_.SetJournal(this);
}

LibraryHistory::~LibraryHistory() {
    tree_.SetJournal(nullptr);
    colors_.SetJournal(nullptr);
}

// The table is heard while a step is open only: files have a million colors.
void LibraryHistory::BeginStep(const LibraryView& view) {
    if (depth_++ > 0)
        return;
    open_ = {};
    open_.before = view;
    colors_.SetJournal(this);
}

void LibraryHistory::EndStep(StepLabel label, const LibraryView& view) {
    if (--depth_ > 0)
        return;
    colors_.SetJournal(nullptr);
    if (open_.changes.empty())
        return;
    open_.label = label;
    open_.after = view;
    steps_.resize(done_);
    steps_.push_back(std::move(open_));
    ++done_;
    TellChange();
}

std::optional<StepLabel> LibraryHistory::NextUndo() const noexcept {
    return done_ > 0 ? std::optional(steps_[done_ - 1].label) : std::nullopt;
}

std::optional<StepLabel> LibraryHistory::NextRedo() const noexcept {
    return done_ < steps_.size() ? std::optional(steps_[done_].label) : std::nullopt;
}

LibraryView LibraryHistory::Undo() {
    Step& step = steps_[--done_];
    tree_.SetJournal(nullptr);
    for (const auto& change : step.afterwards)
        change->TurnRound(tree_, colors_);
    for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
        (*change)->TurnRound(tree_, colors_);
    tree_.SetJournal(this);
    TellChange();
    return step.before;
}

LibraryView LibraryHistory::Redo() {
    Step& step = steps_[done_++];
    tree_.SetJournal(nullptr);
    for (const auto& change : step.changes)
        change->TurnRound(tree_, colors_);
    for (const auto& change : step.afterwards)
        change->TurnRound(tree_, colors_);
    tree_.SetJournal(this);
    TellChange();
    return step.after;
}

void LibraryHistory::Clear() {
    steps_.clear();
    open_.changes.clear();
    done_ = 0;
    TellChange();
}

void LibraryHistory::TellChange() const {
    if (onChange)
        onChange();
}

template <typename Kind, typename... Arguments>
void LibraryHistory::Note(Arguments&&... arguments) {
    if (depth_ > 0)
        open_.changes.push_back(std::make_unique<Kind>(std::forward<Arguments>(arguments)...));
}

// Colors mostly come one after the other.
void LibraryHistory::ColorAdded(ColorId id, const std::string& groupKey) {
    const NodeRef group = tree_.RefOf(groupKey);
    auto* last = open_.changes.empty()
                     ? nullptr
                     : dynamic_cast<LibraryChanges::Colors*>(open_.changes.back().get());
    if (last == nullptr || !last->TakesOneMore(id, group))
        Note<LibraryChanges::Colors>(group, std::vector{id});
}

void LibraryHistory::ColorsRemoved(const std::string& groupKey, std::vector<RemovedColor> colors) {
    Note<LibraryChanges::Colors>(tree_.RefOf(groupKey), std::move(colors));
}

// The first look at a color in a step holds for the next ones.
void LibraryHistory::ColorChanging(ColorId id, StoredColor before) {
    const auto* last = open_.changes.empty()
                           ? nullptr
                           : dynamic_cast<LibraryChanges::Values*>(open_.changes.back().get());
    if (last == nullptr || last->Color() != id)
        Note<LibraryChanges::Values>(id, std::move(before));
}

void LibraryHistory::NodeAdded(const LibraryNode& node) {
    if (depth_ > 0)
        Note<LibraryChanges::Node>(tree_.RefOf(node.key));
}

void LibraryHistory::NodeRemoved(RemovedNode removed) {
    const LibraryNode& node = removed.node;
    const NodeRef ref =
        node.kind == NodeKind::Library
            ? NodeRef{node.id}
            : NodeRef{tree_.At(node.parent).id, LibraryKeys::Within(node.parent, node.key)};
    Note<LibraryChanges::Node>(ref, std::move(removed));
}

void LibraryHistory::NodeRenamed(const std::string& key, const std::string& before) {
    Note<LibraryChanges::Name>(tree_.RefOf(key), before);
}

void LibraryHistory::FileChanged(const std::string& mainKey,
                                 const std::optional<std::string>& before) {
    Note<LibraryChanges::File>(tree_.RefOf(mainKey), before, tree_.At(mainKey).file);
}

// What a group remembers changes with every click too.  That is no step, but it is taken back with
// the step before it.
void LibraryHistory::ColorRemembered(const std::string& groupKey, const std::string& before) {
    using LibraryChanges::LastColor;
    const NodeRef group = tree_.RefOf(groupKey);
    if (depth_ > 0) {
        Note<LastColor>(group, LibraryKeys::Within(groupKey, before));
        return;
    }
    if (done_ == 0)
        return;
    auto& afterwards = steps_[done_ - 1].afterwards;
    if (std::ranges::none_of(afterwards,
                             [&](const auto& change) { return change->Group() == group; }))
        afterwards.push_back(
            std::make_unique<LastColor>(group, LibraryKeys::Within(groupKey, before)));
}
