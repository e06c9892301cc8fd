#pragma once

#include "common/ports/ErrorSink.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"

// Shows the shared error message for whatever no operation handled.
class ErrorReporter : public ErrorSink {
public:
    ErrorReporter(Prompts& prompts, InfoTexts& texts) : prompts_(prompts), texts_(texts) {}

    void ReportError(const std::string& description, const std::string& member) noexcept override;

private:
    Prompts& prompts_;
    InfoTexts& texts_;
};
