#include "platform/controls/Swatch.h"

#include "platform/DpiScale.h"
#include "platform/Fonts.h"
#include "platform/Utf16.h"

#include <utility>

namespace {

constexpr ControlKind kSwatch{"Label", WC_STATICW, "Caption"};
constexpr ControlKind kSolidBar{"PictureBox", WC_STATICW, ""};

constexpr int kMargin = 8; // left and right of the text, design pixels

} // namespace

Swatch::Swatch(ControlHost& host, const ControlPlace& place)
    : Painted(host, kSwatch, place, WS_VISIBLE | SS_NOTIFY | SS_NOPREFIX) {
    TipShowsCutText();
}

bool Swatch::IsTextCut() const {
    const int margins = 2 * Scale().FromDesign(kMargin);
    return MeasureText(Host().Font(), ToUtf16(Text())).cx > WidthOf(Bounds()) - margins;
}

void Swatch::SetColors(ColorNumber background, ColorNumber text) {
    if (background_ == background && text_ == text)
        return;
    background_ = background;
    text_ = text;
    Repaint();
}

void Swatch::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == STN_DBLCLK)
        Raise(onDoubleClick);
}

void Swatch::PaintPicture(PicturePainter painter) {
    painter_ = std::move(painter);
    Repaint();
}

void Swatch::PaintColor(const Canvas& canvas, const RECT& area) const {
    canvas.Fill(area, background_);
    canvas.Frame(area, GetSysColor(COLOR_3DSHADOW), 1);
}

void Swatch::Paint(const Canvas& canvas, const RECT& area) const {
    if (painter_)
        painter_(canvas, area);
    else
        PaintColor(canvas, area);
    RECT inside = area;
    InflateRect(&inside, -Scale().FromDesign(kMargin), 0);
    canvas.Text(Text(), inside, text_, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
}

SolidBar::SolidBar(ControlHost& host, const ControlPlace& place)
    : Control(host, kSolidBar, place, 0) {}

MessageResult SolidBar::OnColor(HDC) {
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_3DDKSHADOW));
}
