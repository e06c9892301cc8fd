#include "mainwindow/panes/ColorStrip.h"

#include "platform/Canvas.h"
#include "platform/Fonts.h"
#include "platform/Utf16.h"

#include <algorithm>

namespace {

// Design pixels.
constexpr int kSquare = 16;
constexpr int kGap = 4; // before the number and below the squares

std::string TextOfMore(const NodeTip& tip) {
    return tip.more > 0 ? "+ " + std::to_string(tip.more) : std::string();
}

} // namespace

SIZE ColorStrip::SizeOf(const NodeTip& tip, const DpiScale& scale, HFONT font) {
    if (tip.colors.empty())
        return {};
    const int square = scale.FromDesign(kSquare);
    const int gap = scale.FromDesign(kGap);
    const SIZE more = MeasureText(font, ToUtf16(TextOfMore(tip)));
    const int number = tip.more > 0 ? gap + static_cast<int>(more.cx) : 0;
    return {static_cast<int>(tip.colors.size()) * square + number,
            std::max(square, LineHeight(font)) + gap};
}

void ColorStrip::Paint(HDC device, POINT at, const NodeTip& tip, const DpiScale& scale,
                       HFONT font) {
    const int square = scale.FromDesign(kSquare);
    RECT place{at.x, at.y, at.x + square, at.y + square};
    for (const ColorValueArray& values : tip.colors) {
        pictures_.Paint(device, place, values, false);
        OffsetRect(&place, square, 0);
    }
    const int left = place.left + scale.FromDesign(kGap);
    const SIZE size = SizeOf(tip, scale, font);
    Canvas(device, font)
        .Text(TextOfMore(tip), {left, at.y, at.x + size.cx, at.y + square},
              GetSysColor(COLOR_INFOTEXT), DT_SINGLELINE | DT_VCENTER | DT_NOCLIP);
}
