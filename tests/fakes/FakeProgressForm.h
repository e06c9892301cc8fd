#pragma once

#include "support/windows/ProgressForm.h"
#include "tests/fakes/FakeForm.h"
#include "tests/fakes/FakeFormWindow.h"
#include "tests/fakes/FakeProgress.h"

class FakeProgressForm : public ProgressForm {
public:
    [[nodiscard]] TwipsRect Bounds() const override { return window.Bounds(); }
    void Move(const TwipsRect& bounds) override { window.Move(bounds); }
    [[nodiscard]] WindowState State() const override { return window.State(); }
    void SetState(WindowState state) override { window.SetState(state); }
    [[nodiscard]] TwipsSize ScreenSize() const override { return window.ScreenSize(); }
    void SetTopmost(bool onTop) override { window.SetTopmost(onTop); }
    [[nodiscard]] std::vector<FormControl*> Controls() override { return form.Controls(); }
    void ShowProgress(const ProgressState& state) override {
        progress.ShowProgress(state.label, state.minimum, state.maximum);
        progress.SetProgress(state.value);
    }
    void SetProgress(std::int32_t value) override { progress.SetProgress(value); }
    void RefreshProgress() override { progress.RefreshProgress(); }
    void HideProgress() override { progress.HideProgress(); }

    FakeFormWindow window{"frmProgress"};
    FakeForm form{"frmProgress"};
    FakeProgress progress;
};
