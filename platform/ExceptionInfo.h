#pragma once

#include <string>
#include <windows.h>
#include <oaidl.h>

// What the other side says about a call that failed; frees its texts.
class ExceptionInfo {
public:
    ExceptionInfo() = default;
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo() { Clear(); }

    // For IDispatch::Invoke; what was held before is freed.
    [[nodiscard]] EXCEPINFO* Receive() noexcept;

    // The other side's own words, or the system's for the result.
    [[nodiscard]] std::string Describe(HRESULT result);

private:
    void Clear() noexcept;

    EXCEPINFO info_{};
};
