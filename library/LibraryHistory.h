#pragma once

#include "library/ColorJournal.h"
#include "library/ColorTable.h"
#include "library/LibraryChanges.h"
#include "library/LibraryTree.h"
#include "library/LibraryView.h"
#include "library/TreeJournal.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// What a step is called by the one who begins it.
using StepLabel = std::int32_t;

// Everything that was done to the open libraries, step by step, so that it can be taken back and
// done again.  A step holds what it changed and nothing else.  Who changes the libraries does not
// know of it: the history hears of each change from tree and table.
//
// What happens outside of a step (opening and saving files) is not taken back and drops nothing.
// Steps name libraries and colors by what stays theirs, so that they hold whatever keys have been
// given meanwhile.
class LibraryHistory : public ColorJournal, public TreeJournal {
public:
    // So much may the steps keep; for more the oldest ones go.
    static constexpr std::size_t kMostBytes = std::size_t{512} * 1024 * 1024;

    LibraryHistory(LibraryTree& tree, ColorTable& colors);

    // Another bound than kMostBytes, for the steps to come.  The last step is always kept.
    void SetMostBytes(std::size_t bytes) noexcept { mostBytes_ = bytes; }
    ~LibraryHistory() override;
    LibraryHistory(const LibraryHistory&) = delete;
    LibraryHistory& operator=(const LibraryHistory&) = delete;

    // Called when there is another step to take back or to do again.
    std::function<void()> onChange;

    // A step from here on; one in another is part of it.  view: what the user sees now.
    void BeginStep(const LibraryView& view);
    // Nothing is added when nothing was changed.
    void EndStep(StepLabel label, const LibraryView& view);

    // Nothing when there is none.
    [[nodiscard]] std::optional<StepLabel> NextUndo() const noexcept;
    [[nodiscard]] std::optional<StepLabel> NextRedo() const noexcept;

    // Takes the last step back, or does it again; there must be one.  Gives what the user saw
    // before or after it.
    [[nodiscard]] LibraryView Undo();
    [[nodiscard]] LibraryView Redo();

    void Clear() noexcept; // not told; also an open step is none any more

    void ColorAdded(ColorId id, const std::string& groupKey) override;
    void ColorsRemoved(std::vector<RemovedColors> removed) override;
    void ColorChanging(ColorId id, StoredColor before) override;
    void NodeAdded(const LibraryNode& node) override;
    void NodeRemoved(RemovedNode removed) override;
    void NodeRenamed(const std::string& key, const std::string& before) override;
    void FileChanged(const std::string& mainKey, const std::optional<std::string>& before) override;
    void ColorRemembered(const std::string& groupKey, const std::string& before) override;

private:
    struct Step {
        StepLabel label = 0;
        std::size_t keptBytes = 0; // as it was done
        LibraryView before;
        LibraryView after;
        std::vector<std::unique_ptr<LibraryChange>> changes;
        // What groups remember since then, one for each group.
        std::vector<std::unique_ptr<LibraryChanges::LastColor>> afterwards;
    };

    template <typename Kind, typename... Arguments>
    void Note(Arguments&&... arguments);
    void DropOldSteps();
    void KeepLooks();
    void KeepAfterwards(std::unique_ptr<LibraryChanges::LastColor> look);
    void TellChange() const;

    LibraryTree& tree_;
    ColorTable& colors_;
    std::vector<Step> steps_;
    std::size_t mostBytes_ = kMostBytes;
    std::size_t keptBytes_ = 0; // by all steps
    std::size_t done_ = 0;      // the first steps are done, the others taken back
    Step open_;
    int depth_ = 0; // of steps in steps
};
