#pragma once

#include "common/ports/ProgressView.h"
#include "common/ports/WaitingClock.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/ProgressBar.h"
#include "platform/Form.h"
#include "platform/WaitCursor.h"
#include "support/windows/ProgressEvents.h"

#include <chrono>
#include <optional>

// The progress window: one for every long operation, shown over the main window.
class frmProgress : public FormOf<ProgressView, FormWindow, LocalizableForm> {
public:
    // Makes the window, hidden.  patience: how long an operation runs before its window appears;
    // the window of one that is over at once would only flash.
    frmProgress(HWND owner, ErrorSink& errors, const WaitingClock& clock,
                std::chrono::milliseconds patience = {});

    void Attach(ProgressEvents& events) { events_ = &events; }

    void ShowProgress(const std::string& label, std::int32_t minimum,
                      std::int32_t maximum) override;
    void SetProgress(std::int32_t value) override;
    void RefreshProgress() override;
    void HideProgress() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;
    void OnCloseBox() override;
    void OnLayout() override;

private:
    void AppearWhenDue();
    void Appear();

    [[nodiscard]] ControlPlace At(const char* name, int id) const { return {name, id, Handle()}; }

    const WaitingClock& clock_;
    const std::chrono::milliseconds patience_;
    std::chrono::milliseconds due_{}; // when it appears
    bool waiting_ = false;
    unsigned steps_ = 0; // while it waits
    std::string label_;
    std::int32_t minimum_ = 0;
    std::int32_t maximum_ = 0;
    std::int32_t value_ = 0;
    std::optional<WaitCursor> cursor_; // while the window is shown
    ProgressEvents* events_ = nullptr;
    Label& lblInfo_;
    ProgressBar& prbMain_;
    CommandButton& cmdCancel_;
};
