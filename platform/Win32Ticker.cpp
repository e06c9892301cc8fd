#include "platform/Win32Ticker.h"

#include "platform/Guarded.h"

#include <utility>

Win32Ticker* Win32Ticker::running_ = nullptr;

void Win32Ticker::Start(std::chrono::milliseconds period, std::function<void()> tick) {
    Stop();
    tick_ = std::move(tick);
    running_ = this;
    timer_ = SetTimer(nullptr, 0, static_cast<UINT>(period.count()), &OnTimer);
}

void Win32Ticker::Stop() noexcept {
    if (timer_ == 0)
        return;
    KillTimer(nullptr, std::exchange(timer_, 0));
    running_ = nullptr;
}

// A message of a timer that has been stopped may still wait.
void CALLBACK Win32Ticker::OnTimer(HWND, UINT, UINT_PTR timer, DWORD) noexcept {
    Win32Ticker* ticker = running_;
    if (ticker == nullptr || ticker->timer_ != timer)
        return;
    const std::function<void()> tick = ticker->tick_; // it may stop the timer
    RunGuarded(ticker->errors_, tick);
}
