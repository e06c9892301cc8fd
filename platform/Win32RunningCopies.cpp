#include "platform/Win32RunningCopies.h"

#include "platform/Utf16.h"

#include <array>
#include <cstdio>
#include <utility>
#include <windows.h>

namespace {

std::string NewName() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 80> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%04u%02u%02u-%02u%02u%02u%03u-%lu",
                                    now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
                                    now.wSecond, now.wMilliseconds, GetCurrentProcessId()));
    return text.data();
}

// Known to all sessions of the computer: the same user may work in two of them.
std::wstring MutexName(const std::string& program, const std::string& copy) {
    return ToUtf16("Global\\" + program + " " + copy);
}

KernelHandle Checked(HANDLE mutex) {
    return KernelHandle(mutex != nullptr ? mutex : KernelHandleTraits::None());
}

} // namespace

Win32RunningCopies::Win32RunningCopies(std::string program)
    : program_(std::move(program)), own_(NewName()),
      mutex_(Checked(CreateMutexW(nullptr, FALSE, MutexName(program_, own_).c_str()))) {}

bool Win32RunningCopies::IsRunning(const std::string& copy) const {
    if (copy == own_)
        return true;
    const KernelHandle mutex =
        Checked(OpenMutexW(SYNCHRONIZE, FALSE, MutexName(program_, copy).c_str()));
    // A mutex that may not be opened is there.
    return static_cast<bool>(mutex) || GetLastError() == ERROR_ACCESS_DENIED;
}
