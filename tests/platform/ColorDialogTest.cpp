// Rules: Active-color editor
#include "platform/ColorDialog.h"

#include "tests/platform/DialogDriver.h"

#include <gtest/gtest.h>

namespace {

constexpr int kRed = 706;
constexpr int kGreen = 707;
constexpr int kBlue = 708;

} // namespace

TEST(ColorDialog, OpensFullyWithTheTitleAndTheInitialColor) {
    std::wstring red, green, blue;
    const DialogDriver driver(L"Farbe \u00FC", [&](HWND dialog) {
        red = TextOfControl(dialog, kRed);
        green = TextOfControl(dialog, kGreen);
        blue = TextOfControl(dialog, kBlue);
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialog, kRed)));
        Press(dialog, IDOK);
    });
    ColorDialog colorDialog;
    EXPECT_EQ(colorDialog.Show(nullptr, "Farbe \xC3\xBC", 0x332211), 0x332211U);
    EXPECT_EQ(red, L"17");
    EXPECT_EQ(green, L"34");
    EXPECT_EQ(blue, L"51");
}

TEST(ColorDialog, GivesTheColorThatWasTyped) {
    const DialogDriver driver(L"color", [&](HWND dialog) {
        SetDlgItemTextW(dialog, kRed, L"200");
        SetDlgItemTextW(dialog, kGreen, L"100");
        SetDlgItemTextW(dialog, kBlue, L"50");
        Press(dialog, IDOK);
    });
    ColorDialog colorDialog;
    EXPECT_EQ(colorDialog.Show(nullptr, "color", 0), RGB(200, 100, 50));
}

TEST(ColorDialog, CancelGivesNothing) {
    const DialogDriver driver(L"color", [](HWND dialog) { Press(dialog, IDCANCEL); });
    ColorDialog colorDialog;
    EXPECT_FALSE(colorDialog.Show(nullptr, "color", 0));
}
