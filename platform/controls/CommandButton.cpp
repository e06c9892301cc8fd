#include "platform/controls/CommandButton.h"

#include "platform/DpiScale.h"
#include "platform/Fonts.h"
#include "platform/Utf16.h"

#include <algorithm>

namespace {

constexpr ControlKind kButton{"CommandButton", WC_BUTTONW, "Caption"};

} // namespace

CommandButton::CommandButton(ControlHost& host, const ControlPlace& place, ButtonRole role)
    : Control(host, kButton, place,
              WS_VISIBLE | WS_TABSTOP | BS_MULTILINE |
                  (role == ButtonRole::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON)) {}

SIZE CommandButton::IdealSize(int maximumWidth) const {
    const int border = Scale().FromDesign(24);
    const int textWidth = maximumWidth > 0 ? std::max(maximumWidth - border, 1) : 0;
    const SIZE text = MeasureText(Host().Font(), ToUtf16(Text()), textWidth);
    return {std::max(text.cx + border, LONG{Scale().FromDesign(80)}),
            text.cy + Scale().FromDesign(10)};
}

void CommandButton::OnCommand(WPARAM wParam) {
    if (HIWORD(wParam) == BN_CLICKED)
        Raise(onClick);
}
