#include "library/LibraryHistory.h"

#include "library/LibraryKeys.h"

#include <algorithm>
#include <utility>

namespace {

// About what a step and a change take, whatever they keep of colors that have left.
constexpr std::size_t kStepBytes = 400;
constexpr std::size_t kChangeBytes = 200;

} // namespace

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
    const bool isStep = std::ranges::any_of(open_.changes, [](const auto& change) {
        return dynamic_cast<const LibraryChanges::LastColor*>(change.get()) == nullptr;
    });
    if (!isStep) {
        KeepLooks();
        return;
    }
    open_.label = label;
    open_.after = view;
    open_.keptBytes = kStepBytes;
    for (const auto& change : open_.changes)
        open_.keptBytes += kChangeBytes + change->KeptBytes();
    for (; steps_.size() > done_; steps_.pop_back())
        keptBytes_ -= steps_.back().keptBytes;
    keptBytes_ += open_.keptBytes;
    steps_.push_back(std::move(open_));
    DropOldSteps();
    done_ = steps_.size();
    TellChange();
}

void LibraryHistory::DropOldSteps() {
    auto first = steps_.begin();
    for (; keptBytes_ > mostBytes_ && first != std::prev(steps_.end()); ++first)
        keptBytes_ -= first->keptBytes;
    steps_.erase(steps_.begin(), first);
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
    std::for_each(step.changes.rbegin(), step.changes.rend(),
                  [this](const auto& change) { change->TurnRound(tree_, colors_); });
    tree_.SetJournal(this);
    TellChange();
    return step.before;
}

LibraryView LibraryHistory::Redo() {
    const Step& step = steps_[done_++];
    tree_.SetJournal(nullptr);
    for (const auto& change : step.changes)
        change->TurnRound(tree_, colors_);
    for (const auto& change : step.afterwards)
        change->TurnRound(tree_, colors_);
    tree_.SetJournal(this);
    TellChange();
    return step.after;
}

// Clicks while SolidWorks was asked are no step: they belong to the one before.
void LibraryHistory::KeepLooks() {
    for (auto& change : open_.changes)
        if (auto* look = dynamic_cast<LibraryChanges::LastColor*>(change.get())) {
            static_cast<void>(change.release());
            KeepAfterwards(std::unique_ptr<LibraryChanges::LastColor>(look));
        }
    open_.changes.clear();
}

void LibraryHistory::KeepAfterwards(std::unique_ptr<LibraryChanges::LastColor> look) {
    if (done_ == 0)
        return;
    auto& afterwards = steps_[done_ - 1].afterwards;
    if (std::ranges::none_of(
            afterwards, [&](const auto& earlier) { return earlier->Group() == look->Group(); }))
        afterwards.push_back(std::move(look));
}

void LibraryHistory::Clear() noexcept {
    steps_.clear();
    open_.changes.clear();
    keptBytes_ = 0;
    done_ = 0;
    depth_ = 0;
    colors_.SetJournal(nullptr);
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
    if (last == nullptr || !last->TakesOneMore(id, group)) {
        std::vector<LibraryChanges::Colors::Part> parts;
        parts.push_back({group, {id}, {}});
        Note<LibraryChanges::Colors>(std::move(parts));
    }
}

void LibraryHistory::ColorsRemoved(std::vector<RemovedColors> removed) {
    std::vector<LibraryChanges::Colors::Part> parts;
    parts.reserve(removed.size());
    for (auto& [groupKey, colors] : removed)
        parts.push_back({tree_.RefOf(groupKey), {}, std::move(colors)});
    Note<LibraryChanges::Colors>(std::move(parts));
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
    Note<LibraryChanges::Node>(std::move(removed));
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
    auto look = std::make_unique<LibraryChanges::LastColor>(tree_.RefOf(groupKey),
                                                            LibraryKeys::Within(groupKey, before));
    if (depth_ > 0)
        open_.changes.push_back(std::move(look));
    else
        KeepAfterwards(std::move(look));
}
