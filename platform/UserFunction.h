#pragma once

#include "platform/SystemFunction.h"

// A function of user32 that older systems lack; null when it is not there.
template <typename Function>
[[nodiscard]] Function UserFunction(const char* name) noexcept {
    return SystemFunction<Function>(L"user32.dll", name);
}
