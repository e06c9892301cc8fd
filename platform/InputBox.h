#pragma once

#include <string>
#include <windows.h>

// Asks the user for one line of text in a modal window over the owner; the preset is selected.
// Empty when the user cancels.
[[nodiscard]] std::wstring ShowInputBox(HWND owner, const std::wstring& prompt,
                                        const std::wstring& title, const std::wstring& preset);
