#include "platform/ColorDialog.h"

#include "platform/CommonDialogError.h"
#include "platform/Utf16.h"

#include <commdlg.h>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

// The dialog has no field for its title: it is set when the window has been made.
UINT_PTR CALLBACK SetTitle(HWND dialog, UINT message, WPARAM, LPARAM longParameter) {
    if (message != WM_INITDIALOG)
        return 0;
    const auto* choice = reinterpret_cast<const CHOOSECOLORW*>(longParameter);
    const auto* title = reinterpret_cast<const std::wstring*>(choice->lCustData);
    SetWindowTextW(dialog, title->c_str());
    return TRUE; // the dialog's own default control gets the focus
}

} // namespace

ColorDialog::ColorDialog() {
    customColors_.fill(kWhite);
}

std::optional<ColorNumber> ColorDialog::Show(HWND owner, const std::string& title,
                                             ColorNumber initial) {
    const std::wstring wideTitle = ToUtf16(title);
    CHOOSECOLORW choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = owner;
    choice.rgbResult = initial;
    choice.lpCustColors = customColors_.data();
    choice.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ENABLEHOOK;
    choice.lCustData = reinterpret_cast<LPARAM>(&wideTitle);
    choice.lpfnHook = SetTitle;
    if (ChooseColorW(&choice))
        return choice.rgbResult;
    ThrowUnlessCancelled();
    return std::nullopt;
}
