#pragma once

#include "library/LibraryHistory.h"
#include "mainwindow/StepName.h"
#include "mainwindow/ViewedLibraries.h"

// What happens to the libraries while this lives is one step, which can be taken back.
class HistoryStep {
public:
    HistoryStep(LibraryHistory& history, const ViewedLibraries& viewed, const StepName& name)
        : history_(history), viewed_(viewed), name_(name) {
        history_.BeginStep(viewed_.View());
    }
    ~HistoryStep() {
        try {
            history_.EndStep(name_.Label(), viewed_.View());
        } catch (...) { // no memory: better no step than half a one
            history_.Clear();
        }
    }
    HistoryStep(const HistoryStep&) = delete;
    HistoryStep& operator=(const HistoryStep&) = delete;

private:
    LibraryHistory& history_;
    const ViewedLibraries& viewed_;
    StepName name_;
};
