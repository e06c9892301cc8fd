// Rules: Start-up and shut-down
#include "platform/LastResort.h"

#include "tests/platform/DialogDriver.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

constexpr int kMessageText = 0xFFFF;

TEST(LastResort, ErrorThatLeavesTheProgramIsShownWithAllItsCharacters) {
    std::wstring shown;
    const DialogDriver driver(L"Programm \u00FC", [&](HWND dialog) {
        shown = TextOfControl(dialog, kMessageText);
        Press(dialog, IDOK);
    });
    const auto fail = []() -> int {
        throw std::runtime_error("Zugriff verwehrt f\xC3\xBCr \xCE\xA9");
    };
    EXPECT_EQ(RunWithLastResort(fail, "Programm \xC3\xBC"), 1);
    EXPECT_EQ(shown, L"Zugriff verwehrt f\u00FCr \u03A9");
}

TEST(LastResort, ExitCodeOfTheProgramIsPassedOn) {
    EXPECT_EQ(RunWithLastResort([] { return 7; }, "x"), 7);
}

} // namespace
