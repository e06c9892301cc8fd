#pragma once

#include "common/RuntimeError.h"

#include <string>
#include <windows.h>

// The system's words for the result, followed by its number: "Access is denied. (80070005)"
// (FormatMessageW).
[[nodiscard]] std::string SystemMessage(HRESULT result);

// The error for a result: in the system's words; where it has none, in the program's own, if there
// are any for the result.  Both end with its number.
[[nodiscard]] RuntimeError SystemError(HRESULT result, int number = ErrorNumber::Automation,
                                       const std::string& member = {});
