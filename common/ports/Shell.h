#pragma once

#include <optional>
#include <string>

enum class ShellOwner { None, ActiveWindow };

// One call of the platform's ShellExecuteA; texts are UTF-8.
struct ShellRequest {
    ShellOwner owner = ShellOwner::None;
    std::string verb;
    std::string file;
    std::optional<std::string> parameters; // nothing: a null pointer
    std::optional<std::string> directory;  // nothing: a null pointer
    int show = 0;                          // 1 SW_SHOWNORMAL, 5 SW_SHOW

    bool operator==(const ShellRequest&) const = default;
};

class Shell {
public:
    virtual ~Shell() = default;

    // What ShellExecuteA returns, as a number.
    virtual int Execute(const ShellRequest& request) = 0;

    // Starts a program with a normal, focused window and does not wait; false when it does not
    // start.
    virtual bool StartProgram(const std::string& commandLine) = 0;
};
