#include "tests/platform/StandInProcess.h"

#include "platform/Utf16.h"
#include "tests/platform/BuiltProgram.h"
#include "tests/platform/PollUntil.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <sstream>

namespace {

constexpr auto kLimit = static_cast<DWORD>(std::chrono::milliseconds(kPatience).count());

std::wstring Quoted(const std::wstring& text) {
    return L"\"" + text + L"\"";
}

// Wine fails now and then while another process is about to end, and does not a moment later.
KernelHandle Start(std::wstring commandLine, const STARTUPINFOW& startup) {
    STARTUPINFOW information = startup;
    PROCESS_INFORMATION process{};
    bool isStarted = false;
    const bool isDecided = PollUntil([&] {
        isStarted = CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                   nullptr, &information, &process) != FALSE;
        return isStarted || GetLastError() != ERROR_INTERNAL_ERROR;
    });
    if (!isDecided || !isStarted)
        return {};
    CloseHandle(process.hThread);
    return KernelHandle(process.hProcess);
}

unsigned long ExitCode(const KernelHandle& process) {
    WaitForSingleObject(process.Get(), kLimit);
    DWORD code = 0;
    GetExitCodeProcess(process.Get(), &code);
    return code;
}

HWND FindStandIn(DWORD processId) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, StandInContract::WindowClass, nullptr)) !=
           nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == processId)
            return window;
    }
    return nullptr;
}

// For the log of a test that finds no stand-in: whether it ended or is not done yet.
void TellWhatBecameOf(const KernelHandle& process) {
    DWORD code = 0;
    GetExitCodeProcess(process.Get(), &code);
    if (code == STILL_ACTIVE)
        std::printf("The stand-in runs and is not ready\n");
    else
        std::printf("The stand-in ended with %lu before it was ready\n", code);
}

std::string ReadAll(HANDLE pipe) {
    std::string text;
    std::array<char, 4096> buffer{};
    DWORD count = 0;
    while (ReadFile(pipe, buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) !=
               FALSE &&
           count > 0)
        text.append(buffer.data(), count);
    std::erase(text, '\r');
    return text;
}

} // namespace

ProgramResult RunProgram(const std::wstring& commandLine) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    KernelHandle readEnd;
    KernelHandle writeEnd;
    CreatePipe(readEnd.Receive(), writeEnd.Receive(), &inherited, 0);
    SetHandleInformation(readEnd.Get(), HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = writeEnd.Get();
    startup.hStdError = writeEnd.Get();
    const KernelHandle process = Start(commandLine, startup);
    writeEnd.Close();
    const std::string output = ReadAll(readEnd.Get());
    return {ExitCode(process), output};
}

StandInProcess::StandInProcess(const std::wstring& switches, CallLogging logging) {
    const std::wstring program = BuiltProgram("swx_standin.exe").wstring();
    const std::wstring log = ToUtf16(folder_.File("calls.log"));
    const std::wstring readyFile = ToUtf16(folder_.File("ready"));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    const std::wstring logSwitch = logging == CallLogging::On ? L" --log " + Quoted(log) : L"";
    process_ = Start(Quoted(program) + L" --hidden --ready-file " + Quoted(readyFile) + logSwitch +
                         L" " + switches,
                     startup);
    if (!process_) {
        std::printf("The stand-in was not started: error %lu\n", GetLastError());
        return;
    }
    ready_ = PollUntil(
        [&] { return std::filesystem::exists(readyFile) && !folder_.Read("ready").empty(); });
    if (!ready_)
        TellWhatBecameOf(process_);
    window_ = FindStandIn(GetProcessId(process_.Get()));
}

HWND StandInProcess::Control(StandInContract::ControlId id) const {
    return GetDlgItem(window_, id);
}

LRESULT StandInProcess::Ask(StandInContract::Question question, LPARAM row) const {
    return SendMessageW(window_, RegisterWindowMessageW(StandInContract::AskMessage),
                        static_cast<WPARAM>(question), row);
}

bool StandInProcess::Order(const std::string& order) const {
    std::string text = order;
    COPYDATASTRUCT data{StandInContract::OrderData, static_cast<DWORD>(text.size()), text.data()};
    return SendMessageW(window_, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data)) != 0;
}

std::vector<std::string> StandInProcess::LoggedCalls() const {
    std::istringstream text(folder_.Read("calls.log"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

unsigned long StandInProcess::Stop() {
    if (!process_)
        return 0;
    PostMessageW(window_, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(process_.Get(), kLimit) != WAIT_OBJECT_0)
        TerminateProcess(process_.Get(), 1);
    return WaitForEnd();
}

unsigned long StandInProcess::WaitForEnd() {
    const unsigned long code = ExitCode(process_);
    process_.Close();
    return code;
}
