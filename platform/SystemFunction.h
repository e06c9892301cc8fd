#pragma once

#include <windows.h>

// A function of one of the system's own libraries, looked for nowhere but in the system folder;
// null when it is not there.  The library stays loaded.
template <typename Function>
[[nodiscard]] Function SystemFunction(const wchar_t* library, const char* name) noexcept {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return module == nullptr
               ? nullptr
               : reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}
