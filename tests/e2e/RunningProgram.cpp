#include "tests/e2e/RunningProgram.h"

#include "platform/Utf16.h"
#include "tests/platform/PollUntil.h"

#include <stdexcept>

namespace {
constexpr auto kLimit = static_cast<DWORD>(std::chrono::milliseconds(kPatience).count());

// What came of it, as the system's number; 0: it runs.
DWORD Start(std::wstring line, PROCESS_INFORMATION& started) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    const BOOL runs = CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                     nullptr, &startup, &started);
    return runs != FALSE ? ERROR_SUCCESS : GetLastError();
}
} // namespace

RunningProgram::RunningProgram(const std::string& commandLine) {
    PROCESS_INFORMATION started{};
    DWORD error = ERROR_SUCCESS;
    // Not every platform makes a process at once while others begin and end beside it.
    const bool isDecided = PollUntil([&] {
        error = Start(ToUtf16(commandLine), started);
        return error == ERROR_SUCCESS || error == ERROR_FILE_NOT_FOUND;
    });
    if (!isDecided || error != ERROR_SUCCESS)
        throw std::runtime_error("Does not start (error " + std::to_string(error) +
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
    if (WaitForSingleObject(process_.Get(), kLimit) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process_.Get(), &code))
        return std::nullopt;
    return code;
}
