#pragma once

#include "library/LibraryHistory.h"
#include "mainwindow/LibraryPanes.h"

// What happens to the libraries while this lives is one step, which can be taken back.
class HistoryStep {
public:
    HistoryStep(LibraryHistory& history, const LibraryPanes& panes, const StepName& name)
        : history_(history), panes_(panes), name_(name) {
        history_.BeginStep(panes_.View());
    }
    ~HistoryStep() {
        try {
            history_.EndStep(name_, panes_.View());
        } catch (...) { // no memory: better no step than half a one
            history_.Clear();
        }
    }
    HistoryStep(const HistoryStep&) = delete;
    HistoryStep& operator=(const HistoryStep&) = delete;

private:
    LibraryHistory& history_;
    const LibraryPanes& panes_;
    StepName name_;
};
