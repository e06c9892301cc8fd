#pragma once

#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/ProgressBar.h"
#include "platform/Form.h"
#include "platform/WaitCursor.h"
#include "support/windows/FormOnDemand.h"
#include "support/windows/ProgressEvents.h"
#include "support/windows/ProgressForm.h"

#include <optional>

// The progress window: one for every long operation, shown over the main window.
class frmProgress : public FormOf<ProgressForm> {
public:
    // Makes the window, hidden.
    frmProgress(HWND owner, ErrorSink& errors);

    void Attach(ProgressEvents& events) { events_ = &events; }

    void ShowProgress(const ProgressState& state) override;
    void SetProgress(std::int32_t value) override;
    void RefreshProgress() override;
    void HideProgress() override;

protected:
    void OnCloseBox() override;
    void OnLayout() override;

private:
    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }

    std::optional<WaitCursor> cursor_; // while the window is shown
    ProgressEvents* events_ = nullptr;
    Label& lblInfo_;
    ProgressBar& prbMain_;
    CommandButton& cmdCancel_;
};

using ProgressOnDemand = FormOnDemand<frmProgress, ProgressForm, ProgressEvents>;
