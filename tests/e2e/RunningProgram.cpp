#include "tests/e2e/RunningProgram.h"

#include "platform/Utf16.h"

#include <stdexcept>

namespace {
constexpr DWORD kPatienceMilliseconds = 15000;
} // namespace

RunningProgram::RunningProgram(const std::string& commandLine) {
    std::wstring line = ToUtf16(commandLine);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &started))
        throw std::runtime_error("Does not start: " + commandLine);
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
