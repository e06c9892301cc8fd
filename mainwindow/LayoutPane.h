#pragma once

#include "common/ports/FormWindow.h"
#include "common/TwipsRect.h"

// What the layout pass needs to know, and what it decides.
struct LayoutMetrics {
    WindowState state = WindowState::Normal;
    float formWidth = 0;  // outer width as it is seen: a line of border on either side
    float innerWidth = 0; // client area
    float innerHeight = 0;
    float toolbarHeight = 0;   // 0 when hidden
    float statusBarHeight = 0; // 0 when hidden
    float hugeFrameHeight = 0;
    float smallSwatchHeight = 0;
};

struct MainLayout {
    TwipsRect tree;
    TwipsRect splitter;
    TwipsRect list;
    TwipsRect frame;             // fraShowColor
    TwipsRect smallSwatch;       // lblActiveColorSmall
    bool hugeFrameShown = false; // the frame is visible, else the small swatch
};

class LayoutPane {
public:
    virtual ~LayoutPane() = default;
    [[nodiscard]] virtual LayoutMetrics Metrics() const = 0;
    virtual void ApplyLayout(const MainLayout& layout) = 0;
    // picSplitter, the bar that is shown while the splitter is dragged.
    virtual void ShowSplitterBar(const TwipsRect& bounds) = 0;
    virtual void HideSplitterBar() = 0;
};

// What changes the layout.
class LayoutEvents {
public:
    virtual ~LayoutEvents() = default;

    virtual void Resized() = 0;
    virtual void ScaleChanged() = 0; // pixels for a twip
    virtual void SplitterPressed() = 0;
    virtual void SplitterDragged(float x) = 0; // x: from the splitter's left edge
    virtual void SplitterReleased() = 0;
};
