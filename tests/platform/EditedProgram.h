#pragma once

#include "platform/KernelHandle.h"
#include "tests/e2e/RemoteWindow.h"
#include "tests/e2e/RunningProgram.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

// Where a library lies, in every process of a session at the same place.
struct ModuleRange {
    std::uintptr_t begin;
    std::uintptr_t end;
};

// The shipped program in a process of its own, with its window shown, worked by commands.
class EditedProgram {
public:
    EditedProgram();

    [[nodiscard]] DWORD Id() const noexcept { return process_.Id(); }
    [[nodiscard]] RemoteWindow Main() const { return main_; }
    [[nodiscard]] RemoteWindow Wait(const wchar_t* className) const {
        return RemoteWindow::WaitFor(className, Id());
    }

    // Returns when the command is carried out; false: it was not within the time.
    [[nodiscard]] bool Run(int command) const { return Send(WM_COMMAND, MAKEWPARAM(command, 0)); }
    [[nodiscard]] bool Answers() const { return Send(WM_NULL, 0); }
    // A command with a window of its own.
    void Begin(int command) const;

    [[nodiscard]] int RowCount() const;  // of the list of colors
    [[nodiscard]] int NodeCount() const; // of the tree
    [[nodiscard]] std::string Status() const;

    // Starts a thread of the process in a function of the system that writes to where nothing is.
    // Gives the library of that function, which the crash happens in.
    [[nodiscard]] ModuleRange Crash() const;

    // By force; returns when it is not there any more.
    void Kill() const;
    [[nodiscard]] std::optional<unsigned> WaitForExitCode() const {
        return process_.WaitForExitCode();
    }

private:
    [[nodiscard]] bool Send(UINT message, WPARAM parameter) const;

    RunningProgram process_;
    RemoteWindow main_;
};

// The folder in which the shipped program keeps libraries, empty before and after.
class KeptLibraries {
public:
    KeptLibraries();
    KeptLibraries(const KeptLibraries&) = delete;
    KeptLibraries& operator=(const KeptLibraries&) = delete;
    ~KeptLibraries();

    [[nodiscard]] const std::string& Path() const noexcept { return path_; }
    // Names and contents of the files whose names end so, those that are being written left out.
    [[nodiscard]] std::map<std::string, std::string> Files(std::string_view ending) const;
    [[nodiscard]] std::map<std::string, std::string> Libraries() const { return Files(".tnt"); }
    void Clean() const;

private:
    std::string path_;
};
