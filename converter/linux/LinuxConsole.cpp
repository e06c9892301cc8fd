#include "converter/linux/LinuxConsole.h"

#include "converter/linux/WriteAll.h"

bool LinuxConsole::Write(std::string_view text) {
    return WriteAll(STDOUT_FILENO, text);
}

void LinuxConsole::Tell(std::string_view text) {
    // Where it does not get through there is nobody else to be told.
    static_cast<void>(WriteAll(STDERR_FILENO, text));
}

bool LinuxConsole::IsWatched() const {
    return isatty(STDERR_FILENO) == 1;
}
