#include "tests/e2e/RunningProgram.h"

#include "platform/Utf16.h"

#include <stdexcept>

namespace {
constexpr DWORD kPatienceMilliseconds = 15000;
constexpr int kAttempts = 3;

// Not every platform makes a process at once while others begin and end beside it.
bool Start(const std::wstring& commandLine, PROCESS_INFORMATION& started) {
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        std::wstring line = commandLine; // which the system may write into
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                           &startup, &started) != FALSE)
            return true;
        Sleep(500);
    }
    return false;
}
} // namespace

RunningProgram::RunningProgram(const std::string& commandLine) {
    PROCESS_INFORMATION started{};
    if (!Start(ToUtf16(commandLine), started))
        throw std::runtime_error("Does not start (error " + std::to_string(GetLastError()) +
                                 "): " + commandLine);
    process_ = KernelHandle(started.hProcess);
    const KernelHandle thread(started.hThread);
    id_ = started.dwProcessId;
}

RunningProgram::~RunningProgram() {
    if (WaitForSingleObject(process_.Get(), 0) == WAIT_TIMEOUT)
        TerminateProcess(process_.Get(), 99);
}

std::optional<unsigned> RunningProgram::WaitForExitCode() const {
    DWORD code = 0;
    if (WaitForSingleObject(process_.Get(), kPatienceMilliseconds) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process_.Get(), &code))
        return std::nullopt;
    return code;
}
