#pragma once

#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"

#include <cstdint>
#include <string>

// How far an operation is.
struct ProgressState {
    std::string label;
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;
    std::int32_t value = 0;
};

// frmProgress as its rules see it.
class ProgressForm : public FormWindow, public LocalizableForm {
public:
    [[nodiscard]] std::string Name() const override { return "frmProgress"; }

    virtual void ShowProgress(const ProgressState& state) = 0; // painted when this returns
    virtual void SetProgress(std::int32_t value) = 0;
    virtual void RefreshProgress() = 0; // painted at once
    virtual void HideProgress() = 0;    // also when it is not shown
};
