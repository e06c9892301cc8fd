#pragma once

#include "common/ports/InfoTexts.h"
#include "library/LibraryHistory.h"
#include "mainwindow/BarsPane.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/StepName.h"

#include <cstdint>
#include <optional>
#include <string>

// Undo and redo: the entries of the edit menu name the step and are grey when there is none.
class HistoryCommands {
public:
    struct Parts {
        LibraryHistory& history;
        LibraryPanes& panes;
        BarsPane& bars;
        InfoTexts& texts;
    };

    explicit HistoryCommands(const Parts& parts);
    ~HistoryCommands();
    HistoryCommands(const HistoryCommands&) = delete;
    HistoryCommands& operator=(const HistoryCommands&) = delete;

    // The status panel says what was taken back or done again.  Nothing without a step.
    void mnuEditUndo_Click();
    void mnuEditRedo_Click();

    // In the words of the active language.
    void ShowEntries();

private:
    struct StepText {
        std::int32_t number;
        const char* builtIn; // %1: the step
    };

    void Take(const std::optional<StepLabel>& step, LibraryView (LibraryHistory::*way)(),
              const StepText& report);
    void ShowEntry(int command, const std::optional<StepLabel>& step, const StepText& caption);
    [[nodiscard]] std::string TextOf(const StepText& text, StepLabel step) const;
    [[nodiscard]] std::string NameOf(StepLabel step) const;

    Parts parts_;
};
