#pragma once

#include "common/ports/AnsiCodePage.h"

#include <string>

// Folder of the executable, UTF-8, without a backslash at its end (GetModuleFileNameW).
[[nodiscard]] std::string ProgramFolder();

// The same folder for functions that take paths in the code page: its short path where the code
// page cannot hold the long one, if the drive has short names.
[[nodiscard]] std::string FolderForCodePage(const std::string& folder,
                                            const AnsiCodePage& codePage);
