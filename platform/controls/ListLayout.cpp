#include "platform/controls/ListLayout.h"

#include "platform/WindowGeometry.h"

#include <algorithm>

namespace {

// Design pixels.
constexpr int kMargin = 12;
constexpr int kGap = 8;

} // namespace

void ListLayout::Place(const RECT& area, const DpiScale& scale) const {
    const int margin = scale.FromDesign(kMargin);
    const int gap = scale.FromDesign(kGap);
    const int textBottom = margin + text.TextSize(WidthOf(area) - 2 * margin).cy;
    const int buttonTop = area.bottom - margin - buttons.back()->IdealSize().cy;
    text.Place({margin, margin, area.right - margin, textBottom});
    list.Place({margin, textBottom + gap, area.right - margin,
                std::max<int>(textBottom + gap, buttonTop - gap)});
    PlaceButtons(area, buttonTop, scale);
}

void ListLayout::PlaceButtons(const RECT& area, int top, const DpiScale& scale) const {
    int left = scale.FromDesign(kMargin);
    for (CommandButton* button : buttons) {
        const SIZE size = button->IdealSize();
        if (button == buttons.back())
            left = std::max<int>(area.right - scale.FromDesign(kMargin) - size.cx, left);
        button->Place({left, top, left + size.cx, top + size.cy});
        left += size.cx + scale.FromDesign(kGap);
    }
}
