#pragma once

#include "common/ports/AnsiCodePage.h"
#include "common/ports/BackgroundWork.h"
#include "library/ColorLibrary.h"
#include "library/ContentFingerprint.h"
#include "library/LibraryContent.h"
#include "library/LibraryFiles.h"
#include "library/RecoveryFolder.h"
#include "library/SavedStates.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Keeps the open libraries that differ from their files in the recovery folder, without anybody
// waiting for it: a look costs next to nothing, and what has changed is written in the background.
// What is as its file is kept no longer; what was closed without being saved stays there.
class RecoveryKeeper {
public:
    struct Parts {
        ColorLibrary& library;
        LibraryFiles& files;
        RecoveryFolder& folder;
        BackgroundWork& work;
        const AnsiCodePage& codePage;
    };

    explicit RecoveryKeeper(const Parts& parts);
    RecoveryKeeper(const RecoveryKeeper&) = delete;
    RecoveryKeeper& operator=(const RecoveryKeeper&) = delete;
    ~RecoveryKeeper();

    // Called once, when a library could not be kept.
    std::function<void()> onFailed;

    // Takes up what has changed since the last look; to be called every second.  True when
    // Entries may be others since then, because copies were written.
    bool Look();

    // The same for all libraries; returns when it is done.
    void KeepAll();

    // After a crash of this thread: what has changed since the last look is written at once and
    // beside what is kept already, for nobody knows in which state it is.
    void KeepAfterCrash();

    // The library was opened from an entry, which goes as soon as the library is kept or saved.
    void IsOpenAgain(const std::string& mainKey, const std::string& entryId);

    // What the user can open or delete: not what is kept of libraries that are open.
    [[nodiscard]] std::vector<RecoveryEntry> Entries();

private:
    // As they are now, made when they are first needed and shared by all libraries of a look.
    using Colors = std::shared_ptr<const ColorSnapshot>;

    struct Kept {
        std::weak_ptr<const void> life{};    // of the library
        std::optional<LibraryState> state{}; // that was taken up last
        std::string id{};                    // of its entry; empty: it has none
        std::string formerId{};              // of the entry that it was opened from
        bool isFailing = false;              // it could not be kept the last time
        int looksToRest = 0;                 // before that is tried again
    };
    enum class Outcome { Written, AsSaved, Failed };
    struct Job {
        LibraryId library = 0;
        std::string id{};
        RecoveryInfo info{};
        LibraryContent content{};
        std::optional<ContentFingerprint> saved{}; // of the library's file
        Outcome outcome = Outcome::Failed;
    };

    bool LookOrThrow();
    void KeepBeforeItLeaves(const std::string& mainKey);
    void TakeUpChanges();
    void TakeUp(const std::string& mainKey, Colors& colors);
    [[nodiscard]] bool IsToBeKept(const std::string& mainKey) const;
    [[nodiscard]] Job JobFor(const std::string& mainKey, Colors& colors);
    [[nodiscard]] bool Rests(const Job& job) const;
    void EndRests();
    [[nodiscard]] Kept& KeptOf(const LibraryNode& library);
    void ForgetTheGone();
    void BeginWork();
    void Finish();
    void FinishJob(Job job);
    void FinishWritten(Kept& kept, const Job& job);
    void TellOfFailure();
    [[nodiscard]] bool IsFormerOfSome(const std::string& id) const;
    [[nodiscard]] bool IsOpen(LibraryId library) const;
    void RemoveEntries(Kept& kept);
    [[nodiscard]] std::vector<std::string> IdsOfOpenLibraries() const;
    void Carry(Job& job) noexcept;

    Parts parts_;
    std::map<LibraryId, Kept> kept_;
    std::vector<Job> waiting_;
    std::vector<Job> underWay_; // or done, and to be finished
    int looksToRest_ = 0;       // when even a look fails
    bool hasFailed_ = false;
};
