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

std::string FolderForCodePage(const std::string& folder, const AnsiCodePage& codePage) {
    if (codePage.Encode(folder).unstored.empty())
        return folder;
    const std::wstring path = ToUtf16(folder);
    std::wstring shortPath(kLongestPath, L'\0');
    const DWORD length =
        GetShortPathNameW(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
    shortPath.resize(length < shortPath.size() ? length : 0);
    return shortPath.empty() ? folder : ToUtf8(shortPath);
}
