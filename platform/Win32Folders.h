#pragma once

#include "common/ports/Folders.h"

// The Folders port over the platform's Unicode file functions.
class Win32Folders : public Folders {
public:
    [[nodiscard]] bool Make(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> FileNamesIn(const std::string& path) override;
};

// The user's folder for data of programs that stays on this computer, without a backslash at its
// end; empty: there is none.
[[nodiscard]] std::string LocalDataFolder();
