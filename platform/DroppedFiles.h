#pragma once

#include <string>
#include <vector>
#include <windows.h>

// The files (full names, UTF-8) that a WM_DROPFILES message brings; its memory is given back.
[[nodiscard]] std::vector<std::string> TakeDroppedFiles(WPARAM wParam);
