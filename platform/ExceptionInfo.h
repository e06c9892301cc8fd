#pragma once

#include "common/RuntimeError.h"

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

    // The error for the result: in the other side's own words, or as SystemError says.
    [[nodiscard]] RuntimeError ToError(HRESULT result, int number, const std::string& member);

private:
    void Clear() noexcept;

    EXCEPINFO info_{};
};
