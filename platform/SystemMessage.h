#pragma once

#include <string>
#include <windows.h>

// The system's words for the result, followed by its number: "Access is denied. (80070005)"
// (FormatMessageW).
[[nodiscard]] std::string SystemMessage(HRESULT result);
