#include "library/RecoveryKeeper.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int kRestAfterFailure = 10; // looks

bool Contains(const std::vector<std::string>& texts, const std::string& text) {
    return std::ranges::find(texts, text) != texts.end();
}

} // namespace

RecoveryKeeper::RecoveryKeeper(const Parts& parts) : parts_(parts) {
    parts_.library.onLibraryLeaving = [this](const std::string& mainKey) {
        KeepBeforeItLeaves(mainKey);
    };
}

RecoveryKeeper::~RecoveryKeeper() {
    parts_.library.onLibraryLeaving = nullptr;
    parts_.work.Wait();
}

// Nobody waits for a look, so nobody is told of an error but as of a copy that cannot be written.
bool RecoveryKeeper::Look() {
    try {
        return LookOrThrow();
    } catch (...) { // no memory
        looksToRest_ = kRestAfterFailure;
        TellOfFailure();
        return false;
    }
}

bool RecoveryKeeper::LookOrThrow() {
    if (!parts_.folder.IsUsable() || parts_.work.IsBusy())
        return false;
    const bool hasWritten = !underWay_.empty();
    Finish();
    if (looksToRest_ > 0) {
        --looksToRest_;
        return hasWritten;
    }
    TakeUpChanges();
    BeginWork();
    ForgetTheGone();
    for (auto& [library, kept] : kept_)
        kept.looksToRest = std::max(0, kept.looksToRest - 1);
    return hasWritten;
}

// Libraries that are closed and cannot come back by undo, unless their last copies are under way.
void RecoveryKeeper::ForgetTheGone() {
    if (waiting_.empty() && underWay_.empty())
        std::erase_if(kept_, [](const auto& kept) { return kept.second.life.expired(); });
}

RecoveryKeeper::Kept& RecoveryKeeper::KeptOf(const LibraryNode& library) {
    Kept& kept = kept_[library.id];
    kept.life = library.life;
    return kept;
}

void RecoveryKeeper::KeepAll() {
    if (!parts_.folder.IsUsable())
        return;
    Finish();
    EndRests();
    TakeUpChanges();
    BeginWork();
    Finish();
}

void RecoveryKeeper::KeepAfterCrash() {
    Colors colors;
    for (const std::string& mainKey : parts_.library.Tree().MainNodes())
        if (parts_.folder.IsUsable() && IsToBeKept(mainKey)) {
            Job job = JobFor(mainKey, colors);
            job.id = parts_.folder.NewId();
            Carry(job);
        }
}

void RecoveryKeeper::KeepBeforeItLeaves(const std::string& mainKey) {
    if (!parts_.folder.IsUsable())
        return;
    if (!parts_.work.IsBusy())
        Finish();
    EndRests();
    Colors colors;
    TakeUp(mainKey, colors);
    if (!parts_.work.IsBusy())
        BeginWork();
}

void RecoveryKeeper::TakeUpChanges() {
    Colors colors;
    for (const std::string& mainKey : parts_.library.Tree().MainNodes())
        TakeUp(mainKey, colors);
}

// A library that has lost its last group keeps what it had before: without groups it has no file.
bool RecoveryKeeper::IsToBeKept(const std::string& mainKey) const {
    const LibraryNode& node = parts_.library.Tree().At(mainKey);
    const SavedStates& states = parts_.files.States();
    const auto kept = kept_.find(node.id);
    return !node.children.empty() && !states.IsAsSaved(mainKey) &&
           (kept == kept_.end() || kept->second.state != states.StateOf(mainKey));
}

void RecoveryKeeper::TakeUp(const std::string& mainKey, Colors& colors) {
    Kept& kept = KeptOf(parts_.library.Tree().At(mainKey));
    if (parts_.files.States().IsAsSaved(mainKey))
        RemoveEntries(kept);
    if (kept.looksToRest > 0 || !IsToBeKept(mainKey))
        return;
    if (kept.id.empty())
        kept.id = parts_.folder.NewId();
    waiting_.push_back(JobFor(mainKey, colors));
    waiting_.back().id = kept.id;
    kept.state = parts_.files.States().StateOf(mainKey);
}

RecoveryKeeper::Job RecoveryKeeper::JobFor(const std::string& mainKey, Colors& colors) {
    const LibraryNode& node = parts_.library.Tree().At(mainKey);
    if (colors == nullptr)
        colors = std::make_shared<const ColorSnapshot>(parts_.library.Colors().Snapshot());
    Job job{.library = node.id,
            .info = {.libraryName = node.text, .filePath = node.file.value_or("")},
            .content = LibraryContent::Of(parts_.library, mainKey, colors),
            .saved = parts_.files.FingerprintOfFile(node.id)};
    job.info.colorCount = job.content.colorCount;
    return job;
}

bool RecoveryKeeper::Rests(const Job& job) const {
    const auto kept = kept_.find(job.library);
    return kept != kept_.end() && kept->second.looksToRest > 0;
}

void RecoveryKeeper::EndRests() {
    for (auto& [library, kept] : kept_)
        kept.looksToRest = 0;
}

void RecoveryKeeper::BeginWork() {
    for (Job& job : std::exchange(waiting_, {}))
        (Rests(job) ? waiting_ : underWay_).push_back(std::move(job));
    if (underWay_.empty())
        return;
    parts_.work.Start([this, open = IdsOfOpenLibraries()] {
        for (Job& job : underWay_)
            Carry(job);
        try {
            parts_.folder.Tidy(open);
        } catch (...) { // no memory: the next time
        }
    });
}

// In the background.
void RecoveryKeeper::Carry(Job& job) noexcept {
    try {
        UnheardProgress unheard;
        const LibraryContent::Composed composed =
            job.content.Compose(parts_.codePage, NameSpelling::Readable, unheard);
        const bool isWhole = !composed.isRespelled && composed.encoded.unstored.empty();
        if (isWhole && job.saved == ContentFingerprint::Of(composed.encoded.bytes))
            job.outcome = Outcome::AsSaved;
        else if (parts_.folder.Write(job.id, job.info, composed.encoded.bytes))
            job.outcome = Outcome::Written;
    } catch (...) { // no memory: as when the disk is full
        job.outcome = Outcome::Failed;
    }
}

void RecoveryKeeper::Finish() {
    parts_.work.Wait();
    for (Job& job : std::exchange(underWay_, {}))
        FinishJob(std::move(job));
}

void RecoveryKeeper::FinishJob(Job job) {
    Kept& kept = kept_[job.library];
    if (job.outcome == Outcome::Written) {
        FinishWritten(kept, job);
    } else if (job.outcome == Outcome::AsSaved) {
        const std::optional<LibraryState> state = kept.state;
        RemoveEntries(kept);
        kept.state = state;
    } else {
        kept.isFailing = true;
        kept.looksToRest = kRestAfterFailure;
        TellOfFailure();
        if (IsOpen(job.library))
            kept.state.reset();
        else
            waiting_.push_back(std::move(job)); // nobody else has it any more
    }
}

// Meanwhile the library may have been saved, or its entry may belong to another one.
void RecoveryKeeper::FinishWritten(Kept& kept, const Job& job) {
    kept.isFailing = false;
    hasFailed_ = hasFailed_ &&
                 std::ranges::any_of(kept_, [](const auto& each) { return each.second.isFailing; });
    if (kept.id != job.id && !IsFormerOfSome(job.id))
        parts_.folder.Remove(job.id);
    if (kept.id == job.id && !kept.formerId.empty())
        parts_.folder.Remove(std::exchange(kept.formerId, {}));
}

void RecoveryKeeper::TellOfFailure() {
    if (!std::exchange(hasFailed_, true) && onFailed)
        onFailed();
}

bool RecoveryKeeper::IsFormerOfSome(const std::string& id) const {
    return std::ranges::any_of(kept_, [&](const auto& kept) { return kept.second.formerId == id; });
}

bool RecoveryKeeper::IsOpen(LibraryId library) const {
    const LibraryTree& tree = parts_.library.Tree();
    return std::ranges::any_of(tree.MainNodes(), [&](const std::string& mainKey) {
        return tree.At(mainKey).id == library;
    });
}

void RecoveryKeeper::RemoveEntries(Kept& kept) {
    std::erase_if(waiting_, [&](const Job& job) { return job.id == kept.id; });
    for (const std::string& id : {kept.id, kept.formerId})
        if (!id.empty())
            parts_.folder.Remove(id);
    kept = {.life = kept.life};
}

void RecoveryKeeper::IsOpenAgain(const std::string& mainKey, const std::string& entryId) {
    parts_.files.ForgetFile(mainKey);
    for (auto& [library, kept] : kept_)
        if (kept.id == entryId) // a closed one, which may come back by undo
            kept = {};
    KeptOf(parts_.library.Tree().At(mainKey)).formerId = entryId;
}

std::vector<std::string> RecoveryKeeper::IdsOfOpenLibraries() const {
    std::vector<std::string> ids;
    for (const std::string& mainKey : parts_.library.Tree().MainNodes()) {
        const auto kept = kept_.find(parts_.library.Tree().At(mainKey).id);
        if (kept == kept_.end())
            continue;
        ids.push_back(kept->second.id);
        ids.push_back(kept->second.formerId);
    }
    return ids;
}

std::vector<RecoveryEntry> RecoveryKeeper::Entries() {
    std::vector<RecoveryEntry> entries = parts_.folder.Entries();
    const std::vector<std::string> open = IdsOfOpenLibraries();
    std::erase_if(entries, [&](const RecoveryEntry& entry) { return Contains(open, entry.id); });
    return entries;
}
