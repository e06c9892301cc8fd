#pragma once

#include "platform/KernelHandle.h"

#include <optional>
#include <string>

// A program that was started for the job; ended by force when it still runs at the end.
class RunningProgram {
public:
    // Throws std::runtime_error when it does not start.
    explicit RunningProgram(const std::string& commandLine);
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    [[nodiscard]] DWORD Id() const noexcept { return id_; }

    // Waits for its end; nothing when it still runs after a quarter of a minute.
    [[nodiscard]] std::optional<unsigned> WaitForExitCode() const;

private:
    KernelHandle process_;
    DWORD id_ = 0;
};
