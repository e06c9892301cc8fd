// Rules: Toolkit
#include "platform/Win32WaitingClock.h"

#include "tests/platform/PollUntil.h"

#include <gtest/gtest.h>
#include <windows.h>

using namespace std::chrono_literals;

TEST(Win32WaitingClock, WaitTakesItsTime) {
    Win32WaitingClock clock;
    const auto start = clock.Now();
    clock.Wait(100ms);
    EXPECT_GE(clock.Now() - start, 100ms);
    EXPECT_LT(clock.Now() - start, kPatience);
}

TEST(Win32WaitingClock, InputThatComesMeanwhileStaysInTheQueue) {
    PostThreadMessageW(GetCurrentThreadId(), WM_KEYDOWN, VK_F1, 0);
    Win32WaitingClock().Wait(20ms);
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
}
