#pragma once

#include <windows.h>

// A function of user32 that older systems lack; null when it is not there.
template <typename Function>
[[nodiscard]] Function UserFunction(const char* name) noexcept {
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(user, name)));
}
