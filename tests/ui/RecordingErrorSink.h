#pragma once

#include "common/ports/ErrorSink.h"

#include <string>
#include <vector>

// Keeps what was reported, as "description|member".
class RecordingErrorSink : public ErrorSink {
public:
    void ReportError(const std::string& description, const std::string& member) noexcept override {
        reports.push_back(description + "|" + member);
    }

    std::vector<std::string> reports;
};
