#pragma once

#include "common/ColorNumber.h"

#include <array>
#include <optional>
#include <string>
#include <windows.h>

// The system's color dialog, ChooseColorW, opened with its custom-color part.
class ColorDialog {
public:
    ColorDialog();

    // Nothing when the user cancels.  The sixteen custom colors stay for the next time.  Throws
    // RuntimeError when the dialog cannot be shown.
    [[nodiscard]] std::optional<ColorNumber> Show(HWND owner, const std::string& title,
                                                  ColorNumber initial);

private:
    std::array<COLORREF, 16> customColors_;
};
