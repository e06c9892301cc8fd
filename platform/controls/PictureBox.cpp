#include "platform/controls/PictureBox.h"

#include "platform/BufferedPaint.h"
#include "platform/DpiScale.h"
#include "platform/Icons.h"

#include <algorithm>

namespace {

constexpr ControlKind kPictureBox{"PictureBox", WC_STATICW, ""};

} // namespace

PictureBox::PictureBox(Form& form, const ControlPlace& place)
    : Control(form, kPictureBox, place, SS_NOTIFY) {}

void PictureBox::SetPicture(HBITMAP picture) {
    picture_ = picture;
    InvalidateRect(Handle(), nullptr, FALSE);
}

SIZE PictureBox::PictureSize() const noexcept {
    BITMAP description{};
    GetObjectW(picture_, sizeof description, &description);
    return {std::max(description.bmWidth, LONG{1}), std::max(description.bmHeight, LONG{1})};
}

int PictureBox::WidthForHeight(int height) const noexcept {
    const SIZE size = PictureSize();
    return MulDiv(size.cx, height, size.cy);
}

void PictureBox::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == STN_CLICKED)
        Raise(onClick);
}

MessageResult PictureBox::OnMessage(const WindowMessage& message) {
    switch (message.id) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        Paint();
        return 0;
    case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        return 1;
    default:
        return {};
    }
}

void PictureBox::Paint() const {
    const BufferedPaint paint(Handle());
    const RECT area = paint.Area();
    FillRect(paint.Device(), &area, GetSysColorBrush(COLOR_3DFACE));
    if (picture_ == nullptr)
        return;
    const SIZE size = PictureSize();
    const int height = std::min(HeightOf(area), MulDiv(size.cy, WidthOf(area), size.cx));
    const int width = WidthForHeight(height);
    const MemoryDevice source(CreateCompatibleDC(paint.Device()));
    const HGDIOBJ before = SelectObject(source.Get(), picture_);
    SetStretchBltMode(paint.Device(), HALFTONE);
    SetBrushOrgEx(paint.Device(), 0, 0, nullptr);
    StretchBlt(paint.Device(), (WidthOf(area) - width) / 2, (HeightOf(area) - height) / 2, width,
               height, source.Get(), 0, 0, size.cx, size.cy, SRCCOPY);
    SelectObject(source.Get(), before);
}

IconBox::IconBox(Form& form, const ControlPlace& place, int designSize)
    : Control(form, kPictureBox, place, WS_VISIBLE | SS_ICON | SS_REALSIZECONTROL),
      designSize_(designSize) {
    IconBox::ApplyScale();
}

void IconBox::ApplyScale() {
    IconHandle icon = LoadProgramIcon(Scale().FromDesign(designSize_));
    Send(STM_SETICON, reinterpret_cast<WPARAM>(icon.Get()));
    icon_ = std::move(icon);
}
