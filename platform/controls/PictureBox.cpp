#include "platform/controls/PictureBox.h"

#include "platform/DpiScale.h"
#include "platform/IconList.h"

#include <algorithm>

namespace {

constexpr ControlKind kPictureBox{"PictureBox", WC_STATICW, ""};

} // namespace

PictureBox::PictureBox(ControlHost& host, const ControlPlace& place)
    : Painted(host, kPictureBox, place, SS_NOTIFY) {}

void PictureBox::SetPicture(HBITMAP picture, bool isLink) {
    picture_ = picture;
    isLink_ = isLink;
    Repaint();
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
    if (message.id != WM_SETCURSOR)
        return Painted::OnMessage(message);
    SetCursor(LoadCursorW(nullptr, isLink_ ? IDC_HAND : IDC_ARROW));
    return 1;
}

void PictureBox::Paint(const Canvas& canvas, const RECT& area) const {
    canvas.Fill(area, GetSysColor(COLOR_3DFACE));
    if (picture_ == nullptr)
        return;
    const SIZE size = PictureSize();
    const int height = std::min(HeightOf(area), MulDiv(size.cy, WidthOf(area), size.cx));
    const int width = WidthForHeight(height);
    const int left = (WidthOf(area) - width) / 2;
    const int top = (HeightOf(area) - height) / 2;
    canvas.Picture(picture_, {left, top, left + width, top + height});
}

IconBox::IconBox(ControlHost& host, const ControlPlace& place, int designSize)
    : Control(host, kPictureBox, place, WS_VISIBLE | SS_ICON | SS_REALSIZECONTROL),
      designSize_(designSize) {
    IconBox::ApplyScale();
}

void IconBox::ApplyScale() {
    IconHandle icon = LoadProgramIcon(Scale().FromDesign(designSize_));
    Send(STM_SETICON, reinterpret_cast<WPARAM>(icon.Get()));
    icon_ = std::move(icon);
}
