#pragma once

#include "common/ports/Files.h"
#include "common/ports/Folders.h"

#include <string>

// What crashes of earlier runs have left in a folder: "crash DATE TIME.dmp", which a debugger
// reads, and "crash DATE TIME.new", a text that nobody has been told of yet.  Told ones end in
// ".txt".  The latest ten stay.
class CrashReports {
public:
    CrashReports(Files& files, Folders& folders, std::string folder)
        : files_(files), folders_(folders), folder_(std::move(folder)) {}

    // The path of the latest report that is new; empty: there is none.  All are told then.
    [[nodiscard]] std::string TakeNew();

private:
    void RemoveOldOnes();

    Files& files_;
    Folders& folders_;
    std::string folder_; // without a backslash at its end; empty: there is none
};
