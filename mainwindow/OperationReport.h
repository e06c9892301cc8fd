#pragma once

#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "mainwindow/BarsPane.h"
#include "mainwindow/MainActivity.h"

#include <string>

// Tells the user how an operation on SolidWorks went, by the result key that it has returned.
class OperationReport {
public:
    struct Parts {
        BarsPane& bars;
        Prompts& prompts;
        InfoTexts& texts;
        const MainActivity& activity; // when the program is about to end, nothing is told any more
    };

    explicit OperationReport(const Parts& parts) : parts_(parts) {}

    // Success in the status panel, everything else as a message.
    void Report(const std::string& resultKey) const;

    // False, and nothing is told: the operation was not refused.
    bool ReportRefusal(const std::string& resultKey) const;

    void ShowMessage(const std::string& text) const;

private:
    Parts parts_;
};
