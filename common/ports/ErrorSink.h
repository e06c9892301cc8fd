#pragma once

#include <string>

// Where a window procedure hands an error that nothing else handled: the user is told once, and the
// program goes on.
class ErrorSink {
public:
    virtual ~ErrorSink() = default;

    // description: UTF-8; member: the automation member that failed, or empty.
    virtual void ReportError(const std::string& description,
                             const std::string& member) noexcept = 0;
};
