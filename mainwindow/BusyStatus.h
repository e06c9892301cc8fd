#pragma once

#include "common/BusyRetry.h"
#include "common/ports/EventPump.h"
#include "common/ports/InfoTexts.h"
#include "mainwindow/BarsPane.h"

// While SolidWorks is busy the status bar says so, the window is alive but takes no input, and
// Escape gives up.
class BusyStatus : public BusyWatch {
public:
    // endRequested: the program is to end, so that nothing is waited for.
    BusyStatus(BarsPane& bars, InfoTexts& texts, EventPump& events, const bool& endRequested)
        : bars_(bars), texts_(texts), events_(events), endRequested_(endRequested) {}

    void BusyBegins() override;
    void BusyEnds() override;
    [[nodiscard]] bool DropInput() override;

private:
    BarsPane& bars_;
    InfoTexts& texts_;
    EventPump& events_;
    const bool& endRequested_;
};
