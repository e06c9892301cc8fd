#pragma once

#include "common/ports/Prompts.h"

#include <windows.h>

// The system's file dialogs, GetOpenFileNameW and GetSaveFileNameW.  The process's current
// directory is afterwards what it was.  Both throw RuntimeError when the dialog cannot be shown.
[[nodiscard]] std::optional<std::string> ShowOpenDialog(HWND owner,
                                                        const FileDialogRequest& request);

// A name typed without an ending gets that of the filter's first pattern.
[[nodiscard]] std::optional<std::string> ShowSaveDialog(HWND owner,
                                                        const FileDialogRequest& request);
