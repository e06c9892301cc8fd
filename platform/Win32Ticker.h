#pragma once

#include "common/ports/ErrorSink.h"
#include "common/ports/Ticker.h"

#include <windows.h>

// A timer of the thread without a window; one in a program.
class Win32Ticker final : public Ticker {
public:
    explicit Win32Ticker(ErrorSink& errors) : errors_(errors) {}
    Win32Ticker(const Win32Ticker&) = delete;
    Win32Ticker& operator=(const Win32Ticker&) = delete;
    ~Win32Ticker() override { Stop(); }

    void Start(std::chrono::milliseconds period, std::function<void()> tick) override;
    void Stop() noexcept override;

private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time) noexcept;

    static Win32Ticker* running_; // the system tells a timer's procedure nothing but its number

    ErrorSink& errors_;
    std::function<void()> tick_;
    UINT_PTR timer_ = 0;
};
