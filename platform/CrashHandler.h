#pragma once

#include <functional>
#include <memory>
#include <string>

// For as long as it lives: when the process crashes, a small dump and a text with the version are
// left in a folder, work is saved as well as it can be, and the process ends; nothing is shown and
// nothing is sent anywhere.  There is at most one.
class CrashHandler {
public:
    struct Report {
        std::string folder;  // without a backslash at its end, made when it is needed; empty: none
        std::string program; // name and version
    };

    // save: is called when the thread that makes this has crashed; another one cannot know what
    // that thread is doing.
    CrashHandler(Report report, std::function<void()> save);
    CrashHandler(const CrashHandler&) = delete;
    CrashHandler& operator=(const CrashHandler&) = delete;
    ~CrashHandler();

    struct Parts; // for the functions that the system calls

private:
    std::unique_ptr<Parts> parts_;
};
