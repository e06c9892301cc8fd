#include "platform/controls/Swatch.h"

#include "platform/BufferedPaint.h"
#include "platform/Fonts.h"
#include "platform/Form.h"
#include "platform/Utf16.h"

#include <utility>

namespace {

constexpr ControlKind kSwatch{"Label", WC_STATICW, "Caption"};
constexpr ControlKind kSolidBar{"PictureBox", WC_STATICW, ""};

constexpr int kMargin = 8; // left and right of the text, design pixels

} // namespace

Swatch::Swatch(Form& form, const ControlPlace& place)
    : Control(form, kSwatch, place, WS_VISIBLE | SS_NOTIFY | SS_NOPREFIX) {
    TipShowsCutText();
}

bool Swatch::IsTextCut() const {
    const int margins = 2 * Scale().FromDesign(kMargin);
    return MeasureText(Owner().Font(), ToUtf16(Text())).cx > WidthOf(Bounds()) - margins;
}

void Swatch::SetColors(ColorNumber background, ColorNumber text) {
    if (background_ == background && text_ == text)
        return;
    background_ = background;
    text_ = text;
    InvalidateRect(Handle(), nullptr, FALSE);
}

// A static control repaints at once, and with its own colours, when its text is set.
void Swatch::SetText(const std::string& text) {
    if (text == Text())
        return;
    if (!IsShown()) { // switching its drawing on again would show it
        Control::SetText(text);
        return;
    }
    Send(WM_SETREDRAW, FALSE);
    Control::SetText(text);
    Send(WM_SETREDRAW, TRUE);
    InvalidateRect(Handle(), nullptr, FALSE);
}

void Swatch::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == STN_DBLCLK)
        Raise(onDoubleClick);
}

MessageResult Swatch::OnMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        Paint();
        return 0;
    default:
        return {};
    }
}

void Swatch::Paint() const {
    const BufferedPaint paint(Handle());
    RECT area = paint.Area();
    const BrushHandle brush(CreateSolidBrush(background_));
    FillRect(paint.Device(), &area, brush.Get());
    FrameRect(paint.Device(), &area, GetSysColorBrush(COLOR_3DSHADOW));
    const HGDIOBJ before = SelectObject(paint.Device(), Owner().Font());
    SetBkMode(paint.Device(), TRANSPARENT);
    SetTextColor(paint.Device(), text_);
    const int margin = Scale().FromDesign(kMargin);
    InflateRect(&area, -margin, 0);
    DrawTextW(paint.Device(), ToUtf16(Text()).c_str(), -1, &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(paint.Device(), before);
}

SolidBar::SolidBar(Form& form, const ControlPlace& place) : Control(form, kSolidBar, place, 0) {}

MessageResult SolidBar::OnColor(HDC) {
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_3DDKSHADOW));
}
