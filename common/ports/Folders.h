#pragma once

#include <string>
#include <vector>

// The folders of the file system.  Paths are UTF-8.
class Folders {
public:
    virtual ~Folders() = default;

    // Makes a folder, and those above it, where they are missing.  False when it is not there
    // afterwards.
    [[nodiscard]] virtual bool Make(const std::string& path) = 0;

    // The names of the files in a folder, in any order; none when there is no such folder.
    [[nodiscard]] virtual std::vector<std::string> FileNamesIn(const std::string& path) = 0;
};
