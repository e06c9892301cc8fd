// Rules: SolidWorks session
#include "platform/Win32EventPump.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

void PostToThread(UINT message, WPARAM wParam = 0) {
    PostThreadMessageW(GetCurrentThreadId(), message, wParam, 0);
}

bool IsQueueEmpty() {
    MSG message{};
    return PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) == FALSE;
}

// A window that counts what reaches it.
class CountingWindow {
public:
    CountingWindow() {
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
    }
    CountingWindow(const CountingWindow&) = delete;
    CountingWindow& operator=(const CountingWindow&) = delete;
    ~CountingWindow() { DestroyWindow(window_); }

    [[nodiscard]] HWND Handle() const noexcept { return window_; }

    int commands = 0;
    int inputs = 0;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam) {
        auto* self = reinterpret_cast<CountingWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (id == WM_COMMAND)
            ++self->commands;
        if (id == WM_LBUTTONDOWN || id == WM_NCLBUTTONDOWN || id == WM_KEYDOWN ||
            id == WM_MOUSEWHEEL || id == WM_SYSKEYDOWN)
            ++self->inputs;
        return DefWindowProcW(window, id, wParam, lParam);
    }

    HWND window_ = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                   nullptr, nullptr);
};

} // namespace

TEST(Win32EventPump, EventsAreProcessedAndClicksAndKeysAreThrownAway) {
    CountingWindow window;
    for (const UINT input : {UINT{WM_LBUTTONDOWN}, UINT{WM_NCLBUTTONDOWN}, UINT{WM_KEYDOWN},
                             UINT{WM_MOUSEWHEEL}, UINT{WM_SYSKEYDOWN}})
        PostMessageW(window.Handle(), input, VK_F1, 0);
    PostMessageW(window.Handle(), WM_COMMAND, 1, 0);
    EXPECT_FALSE(Win32EventPump().ProcessEventsWithoutInput());
    EXPECT_EQ(window.commands, 1);
    EXPECT_EQ(window.inputs, 0);
    EXPECT_TRUE(IsQueueEmpty());
}

TEST(Win32EventPump, EscapeAmongTheKeysIsTold) {
    PostToThread(WM_KEYDOWN, VK_RETURN);
    PostToThread(WM_KEYDOWN, VK_ESCAPE);
    PostToThread(WM_KEYUP, VK_ESCAPE);
    EXPECT_TRUE(Win32EventPump().ProcessEventsWithoutInput());
    EXPECT_FALSE(Win32EventPump().ProcessEventsWithoutInput()) << "and only once";
}

TEST(Win32EventPump, EndOfTheProgramIsPassedOn) {
    PostQuitMessage(7);
    EXPECT_FALSE(Win32EventPump().ProcessEventsWithoutInput());
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7U);
}
