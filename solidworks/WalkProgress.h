#pragma once

#include "common/BusyRetry.h"
#include "common/ShownProgress.h"
#include "solidworks/modSldTools.h"

// The progress window of a walk over many items, for as long as the walk lasts, and the user's wish
// to stop it: seen before every item, and while SolidWorks is too busy to take a call.
class WalkProgress {
public:
    // The bar runs from 0 to maximum.
    WalkProgress(const modSldTools::Ports& ports, std::int32_t labelText, std::int32_t maximum);

    // Lets the user interface breathe.  Throws OperationStopped when the user wants to stop.
    void BeginItem();

    // Moves the bar and repaints the window.
    void Show(std::int32_t value);
    void Advance() { Show(value_ + 1); }

private:
    [[nodiscard]] bool IsStopped();

    EventPump& events_;
    const bool& stopFlag_;
    ShownProgress progress_;
    StoppableCalls calls_;
    std::int32_t value_ = 0;
};
