#pragma once

#include "mainwindow/LayoutPane.h"

// Runs the layout pass and the splitter drag of the main window.
class LayoutController : public LayoutEvents {
public:
    static constexpr float kInitialSplitter = 3000; // left edge as designed

    explicit LayoutController(LayoutPane& pane) : pane_(pane) {
        layout_.splitter.left = kInitialSplitter;
    }

    // The layout pass.  Nothing happens while the window is minimised or maximised, on purpose: it
    // keeps the geometry of its last normal size.
    void Resized() override;

    // The screen's resolution changed: all controls are placed again, in every window state.
    void ScaleChanged() override { pane_.ApplyLayout(layout_); }

    // The large frame instead of the small swatch, at once and in every window state.
    void SetHugeFrame(bool shown);

    void SplitterPressed() override;
    void SplitterDragged(float x) override;
    void SplitterReleased() override;

private:
    LayoutPane& pane_;
    MainLayout layout_;
    bool splitterMoving_ = false;
    TwipsRect splitterBar_;
};
