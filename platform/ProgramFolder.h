#pragma once

#include <string>

// Folder of the executable, UTF-8, without a backslash at its end (GetModuleFileNameW).
[[nodiscard]] std::string ProgramFolder();
