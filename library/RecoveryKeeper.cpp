#include "library/RecoveryKeeper.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int kRestAfterFailure = 10; // looks

class Unheard : public WorkProgress {
public:
    void Starts(std::int32_t) override {}
    void Reaches(std::int32_t) override {}
};

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

void RecoveryKeeper::Look() {
    if (!parts_.folder.IsUsable() || parts_.work.IsBusy())
        return;
    Finish();
    if (looksToRest_ > 0) {
        --looksToRest_;
        return;
    }
    TakeUpChanges();
    BeginWork();
}

void RecoveryKeeper::KeepAll() {
    if (!parts_.folder.IsUsable())
        return;
    Finish();
    TakeUpChanges();
    BeginWork();
    Finish();
}

void RecoveryKeeper::KeepBeforeItLeaves(const std::string& mainKey) {
    if (!parts_.folder.IsUsable())
        return;
    TakeUp(mainKey);
    if (!parts_.work.IsBusy()) {
        Finish();
        BeginWork();
    }
}

void RecoveryKeeper::TakeUpChanges() {
    for (const std::string& mainKey : parts_.library.Tree().MainNodes())
        TakeUp(mainKey);
}

void RecoveryKeeper::TakeUp(const std::string& mainKey) {
    const LibraryNode& node = parts_.library.Tree().At(mainKey);
    const SavedStates& states = parts_.files.States();
    Kept& kept = kept_[node.id];
    if (!states.IsChanged(mainKey)) {
        RemoveEntries(kept);
        return;
    }
    const LibraryState state = states.StateOf(mainKey);
    if (kept.state == state)
        return;
    kept.state = state;
    if (kept.id.empty())
        kept.id = parts_.folder.NewId();
    Job job{.library = node.id,
            .id = kept.id,
            .info = {.libraryName = node.text, .filePath = node.file.value_or("")},
            .content = LibraryContent::Of(parts_.library, mainKey),
            .saved = parts_.files.FingerprintOfFile(node.id)};
    job.info.colorCount = job.content.colorCount;
    waiting_.push_back(std::move(job));
}

void RecoveryKeeper::BeginWork() {
    if (waiting_.empty())
        return;
    underWay_ = std::exchange(waiting_, {});
    parts_.work.Start([this, open = IdsOfOpenLibraries()] {
        for (Job& job : underWay_)
            Carry(job);
        parts_.folder.Tidy(open);
    });
}

// In the background.
void RecoveryKeeper::Carry(Job& job) const noexcept {
    try {
        Unheard unheard;
        const std::string bytes =
            job.content.Compose(parts_.codePage, NameSpelling::Readable, unheard).bytes;
        if (job.saved == ContentFingerprint::Of(bytes))
            job.outcome = Outcome::AsSaved;
        else if (parts_.folder.Write(job.id, job.info, bytes))
            job.outcome = Outcome::Written;
    } catch (...) { // no memory: as when the disk is full
        job.outcome = Outcome::Failed;
    }
}

void RecoveryKeeper::Finish() {
    parts_.work.Wait();
    for (const Job& job : std::exchange(underWay_, {}))
        FinishJob(job);
}

void RecoveryKeeper::FinishJob(const Job& job) {
    Kept& kept = kept_[job.library];
    switch (job.outcome) {
    case Outcome::Written:
        if (!kept.formerId.empty())
            parts_.folder.Remove(std::exchange(kept.formerId, {}));
        break;
    case Outcome::AsSaved: {
        const std::optional<LibraryState> state = kept.state;
        RemoveEntries(kept);
        kept.state = state;
        break;
    }
    case Outcome::Failed:
        kept.state.reset();
        looksToRest_ = kRestAfterFailure;
        if (!std::exchange(hasFailed_, true) && onFailed)
            onFailed();
        break;
    }
}

void RecoveryKeeper::RemoveEntries(Kept& kept) {
    for (const std::string& id : {kept.id, kept.formerId})
        if (!id.empty())
            parts_.folder.Remove(id);
    kept = {};
}

void RecoveryKeeper::IsOpenAgain(const std::string& mainKey, const std::string& entryId) {
    parts_.files.ForgetFile(mainKey);
    kept_[parts_.library.Tree().At(mainKey).id].formerId = entryId;
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
