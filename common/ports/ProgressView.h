#pragma once

#include <cstdint>
#include <string>

// The progress window: one label, one bar, one Stop button that sets the stop flag.
class ProgressView {
public:
    virtual ~ProgressView() = default;

    // Shows the window with its label, bar range minimum..maximum and bar value at the minimum; it
    // may stay away from the screen until the operation has taken a noticeable time.
    virtual void ShowProgress(const std::string& label, std::int32_t minimum,
                              std::int32_t maximum) = 0;

    // Values beyond the maximum leave the bar at its end.
    virtual void SetProgress(std::int32_t value) = 0;

    // Repaints the window at once.
    virtual void RefreshProgress() = 0;

    // Takes the window down; does nothing when it is not shown.
    virtual void HideProgress() = 0;
};
