#pragma once

// What happens in frmProgress.
class ProgressEvents {
public:
    virtual ~ProgressEvents() = default;
    virtual void ProgressLoading() = 0; // before it is shown: texts and always-on-top are set now
    virtual void StopClicked() = 0;     // cmdCancel, Escape and the close box
};
