#pragma once

#include "common/ports/ProgressView.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/ProgressBar.h"
#include "platform/Form.h"
#include "support/ProgressEvents.h"

// The progress window: one for every long operation, shown over the main window.
class frmProgress : public FormOf<ProgressView, FormWindow, LocalizableForm> {
public:
    frmProgress(HWND owner, ErrorSink& errors); // makes the window, hidden

    void Attach(ProgressEvents& events) { events_ = &events; }

    void ShowProgress(const std::string& label, std::int32_t minimum,
                      std::int32_t maximum) override;
    void SetProgress(std::int32_t value) override;
    void RefreshProgress() override;
    void HideProgress() override;

protected:
    void OnCloseBox() override;
    void OnLayout() override;

private:
    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }

    ProgressEvents* events_ = nullptr;
    Label& lblInfo_;
    ProgressBar& prbMain_;
    CommandButton& cmdCancel_;
};
