#pragma once

#include <map>
#include <random>
#include <string>
#include <windows.h>

// Somebody without a plan in the windows beside the main one: presses keys, types, clicks, resizes.
// Windows that wait for a person get a few steps and are closed, so that they never keep the main
// window waiting for long.
class OtherWindows {
public:
    // main: the main window, of this thread.  seed: of what is done.
    OtherWindows(HWND main, unsigned seed);
    OtherWindows(const OtherWindows&) = delete;
    OtherWindows& operator=(const OtherWindows&) = delete;
    ~OtherWindows();

    // Does something in one of the open windows; nothing when there is none.
    void Step();

    // How often something was done in the windows of a class.
    [[nodiscard]] int StepsIn(const std::wstring& windowClass) const;

private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);

    void VisitModalWindow();
    void ActIn(HWND window);
    void ActOn(HWND part);
    void PressKey(HWND part);
    void ClickAt(HWND part);
    [[nodiscard]] HWND AnyPartOf(HWND window);
    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    HWND main_;
    std::mt19937 random_;
    UINT_PTR timer_;
    int stepsInModal_ = 0;
    std::map<std::wstring, int> steps_;
};
