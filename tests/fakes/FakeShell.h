#pragma once

#include "common/ports/Shell.h"

#include <vector>

class FakeShell : public Shell {
public:
    int Execute(const ShellRequest& request) override {
        requests.push_back(request);
        return result;
    }
    bool StartProgram(const std::string& commandLine) override {
        programs.push_back(commandLine);
        return starts;
    }

    std::vector<ShellRequest> requests;
    std::vector<std::string> programs;
    int result = 33;
    bool starts = true;
};
