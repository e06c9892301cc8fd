#pragma once

#include "common/ports/ErrorSink.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"

// Shows the shared error message for whatever no operation handled, in the words of the active
// language.
class ErrorReporter : public ErrorSink {
public:
    ErrorReporter(Prompts& prompts, InfoTexts& texts) : prompts_(prompts), texts_(texts) {}

    void ReportError(const RuntimeError& error) noexcept override;

private:
    Prompts& prompts_;
    InfoTexts& texts_;
};
