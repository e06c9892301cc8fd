#pragma once

#include "platform/KernelHandle.h"
#include "standin/model/StandInContract.h"
#include "tests/platform/ScratchFolder.h"

#include <string>
#include <vector>

// Runs a program of the build and waits for its end.
struct ProgramResult {
    unsigned long exitCode = 0;
    std::string output; // standard output, lines separated by "\n"
};
[[nodiscard]] ProgramResult RunProgram(const std::wstring& commandLine);

// Whether a stand-in writes every call into a file.
enum class CallLogging { Off, On };

// A stand-in in a process of its own, without a visible window; it ends with this object.
class StandInProcess {
public:
    // switches: as on the command line.
    explicit StandInProcess(const std::wstring& switches = {},
                            CallLogging logging = CallLogging::On);
    StandInProcess(const StandInProcess&) = delete;
    StandInProcess& operator=(const StandInProcess&) = delete;
    ~StandInProcess() { Stop(); }

    [[nodiscard]] bool IsReady() const noexcept { return ready_; }
    [[nodiscard]] HWND Window() const noexcept { return window_; }
    [[nodiscard]] HWND Control(StandInContract::ControlId id) const;

    [[nodiscard]] LRESULT Ask(StandInContract::Question question, LPARAM row = 0) const;
    bool Order(const std::string& order) const;
    [[nodiscard]] std::vector<std::string> LoggedCalls() const;

    // Closes the window and waits for the end; the exit code.
    unsigned long Stop();
    // Waits for an end that comes by itself; the exit code.
    unsigned long WaitForEnd();

private:
    ScratchFolder folder_;
    KernelHandle process_;
    HWND window_ = nullptr;
    bool ready_ = false;
};
