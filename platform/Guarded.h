#pragma once

#include "common/ports/ErrorSink.h"

// Hands the exception that is being handled to the sink.
void ReportCurrentException(ErrorSink& sink) noexcept;

// Runs what a callback of the platform does.  No exception leaves it; false: one was reported.
template <typename Action>
bool RunGuarded(ErrorSink& sink, Action&& action) noexcept {
    try {
        action();
        return true;
    } catch (...) {
        ReportCurrentException(sink);
        return false;
    }
}
