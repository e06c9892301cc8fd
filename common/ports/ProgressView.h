#pragma once

#include <cstdint>
#include <string>

// The progress window: one label, one bar, one Stop button that sets the stop flag.
class ProgressView {
public:
    virtual ~ProgressView() = default;

    // Starts with a label and a bar from minimum to maximum that stands at the minimum.  The window
    // may appear only when the operation has run for a while; one that is over sooner shows none.
    virtual void ShowProgress(const std::string& label, std::int32_t minimum,
                              std::int32_t maximum) = 0;

    // Values beyond the maximum leave the bar at its end.
    virtual void SetProgress(std::int32_t value) = 0;

    // Repaints the window at once.
    virtual void RefreshProgress() = 0;

    // Takes the window down; does nothing when it is not shown.
    virtual void HideProgress() = 0;
};
