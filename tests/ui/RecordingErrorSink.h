#pragma once

#include "common/ports/ErrorSink.h"

#include <string>
#include <vector>

// Keeps what was reported, as "description|member".
class RecordingErrorSink : public ErrorSink {
public:
    void ReportError(const RuntimeError& error) noexcept override {
        reports.push_back(error.Description() + "|" + error.Member());
    }

    std::vector<std::string> reports;
};
