#pragma once

#include "common/RuntimeError.h"

// Where a window procedure hands an error that nothing else handled: the user is told once, and the
// program goes on.
class ErrorSink {
public:
    virtual ~ErrorSink() = default;

    virtual void ReportError(const RuntimeError& error) noexcept = 0;
};
