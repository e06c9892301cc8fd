#pragma once

#include "common/ports/AnsiCodePage.h"
#include "common/ports/Shell.h"

// ShellExecuteA and CreateProcessW.
class Win32Shell : public Shell {
public:
    // The code page turns the texts of a request into bytes; it must outlive this object.
    explicit Win32Shell(const AnsiCodePage& codePage) : codePage_(codePage) {}

    int Execute(const ShellRequest& request) override;

    // A command line that is the path of a file, blanks or not, starts exactly that file.
    bool StartProgram(const std::string& commandLine) override;

private:
    const AnsiCodePage& codePage_;
};
