#include "mainwindow/LayoutController.h"

#include "mainwindow/Layout.h"

void LayoutController::Resized() {
    const LayoutMetrics metrics = pane_.Metrics();
    if (metrics.state != WindowState::Normal)
        return;
    Layout::Arrange(metrics, layout_);
    pane_.ApplyLayout(layout_);
}

void LayoutController::SetHugeFrame(bool shown) {
    layout_.hugeFrameShown = shown;
    pane_.ApplyLayout(layout_);
}

void LayoutController::SplitterPressed() {
    splitterBar_ = Layout::SplitterBar(layout_.splitter);
    pane_.ShowSplitterBar(splitterBar_);
    splitterMoving_ = true;
}

void LayoutController::SplitterDragged(float x) {
    if (!splitterMoving_)
        return;
    splitterBar_.left = Layout::ClampSplitter(x + layout_.splitter.left, pane_.Metrics().formWidth);
    pane_.ShowSplitterBar(splitterBar_);
}

void LayoutController::SplitterReleased() {
    if (!splitterMoving_)
        return;
    float x = splitterBar_.left;
    Layout::SizeControls(x, pane_.Metrics().formWidth, layout_);
    pane_.ApplyLayout(layout_);
    pane_.HideSplitterBar();
    splitterMoving_ = false;
}
