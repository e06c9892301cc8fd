#include "platform/ProgramFolder.h"

#include "platform/Utf16.h"

#include <windows.h>

namespace {

constexpr std::size_t kLongestPath = 0x8000;

std::wstring ProgramPath() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size() && path.size() < kLongestPath) { // cut off
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return path;
}

} // namespace

std::string ProgramFolder() {
    const std::wstring path = ProgramPath();
    return ToUtf8(path.substr(0, path.find_last_of(L'\\')));
}
