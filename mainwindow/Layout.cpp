#include "mainwindow/Layout.h"

#include <algorithm>

namespace Layout {

float ClampSplitter(float x, float formWidth) noexcept {
    return std::min(std::max(x, kSmallestPane), formWidth - kSmallestPane);
}

void SizeControls(float& x, float formWidth, MainLayout& layout) noexcept {
    x = ClampSplitter(x, formWidth);
    layout.tree.width = std::max(0.0F, x); // a form narrower than that has no room for it
    layout.splitter.left = x;
    layout.list.left = x + kPaneGap;
    layout.list.width = std::max(0.0F, formWidth - (x + kListMargin));
    layout.splitter.top = layout.tree.top;
    layout.splitter.height = layout.tree.height;
}

void Arrange(const LayoutMetrics& metrics, MainLayout& layout) noexcept {
    layout.frame.width = metrics.innerWidth;
    layout.frame.height = metrics.hugeFrameHeight;
    layout.smallSwatch.width = std::max(0.0F, metrics.innerWidth - kPaneGap);
    layout.smallSwatch.height = metrics.smallSwatchHeight;
    const float colorAreaHeight =
        layout.hugeFrameShown ? metrics.hugeFrameHeight : metrics.smallSwatchHeight;
    layout.tree.top = metrics.toolbarHeight;
    layout.tree.height =
        std::max(kSmallestPaneHeight, metrics.innerHeight - metrics.toolbarHeight -
                                          (colorAreaHeight + kPaneGap) - metrics.statusBarHeight);
    layout.list.top = layout.tree.top;
    layout.list.height = layout.tree.height;
    layout.frame.top = layout.tree.top + layout.tree.height;
    layout.smallSwatch.top = layout.frame.top;
    layout.splitter.width = kSplitterWidth;
    SizeControls(layout.splitter.left, metrics.formWidth, layout);
}

TwipsRect SplitterBar(const TwipsRect& splitter) noexcept {
    return {splitter.left, splitter.top, splitter.width / 2, splitter.height - kSplitterBarInset};
}

} // namespace Layout
