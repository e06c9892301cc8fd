#pragma once

#include "common/ports/Prompts.h"

#include <optional>
#include <string>
#include <vector>
#include <windows.h>

// The system's file dialogs, GetOpenFileNameW and GetSaveFileNameW.  The process's current
// directory is afterwards what it was.  Both throw RuntimeError when the dialog cannot be shown.
[[nodiscard]] std::optional<std::string> ShowOpenDialog(HWND owner,
                                                        const FileDialogRequest& request);

// The same for any number of files; none when the user cancels.
[[nodiscard]] std::vector<std::string> ShowOpenDialogForSeveral(HWND owner,
                                                                const FileDialogRequest& request);

// A name typed without an ending gets that of the pattern that is chosen in the dialog, at first
// the filter's first one.
[[nodiscard]] std::optional<std::string> ShowSaveDialog(HWND owner,
                                                        const FileDialogRequest& request);
