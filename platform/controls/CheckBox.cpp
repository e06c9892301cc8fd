#include "platform/controls/CheckBox.h"

#include "platform/DpiScale.h"
#include "platform/Fonts.h"
#include "platform/Utf16.h"

namespace {

constexpr ControlKind kCheckBox{"CheckBox", WC_BUTTONW, "Caption"};

constexpr int kBox = 22;   // with the gap before the text, design pixels
constexpr int kBorder = 4; // above and below the text together

} // namespace

CheckBox::CheckBox(ControlHost& host, const ControlPlace& place)
    : Control(host, kCheckBox, place, WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX) {}

bool CheckBox::IsChecked() const {
    return Send(BM_GETCHECK) == BST_CHECKED;
}

SIZE CheckBox::IdealSize() const {
    const SIZE text = MeasureText(Host().Font(), ToUtf16(Text()));
    return {text.cx + Scale().FromDesign(kBox), text.cy + Scale().FromDesign(kBorder)};
}

void CheckBox::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == BN_CLICKED)
        Raise(onChange, IsChecked());
}
