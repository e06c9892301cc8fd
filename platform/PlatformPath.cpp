#include "platform/PlatformPath.h"

#include "platform/Utf16.h"

#include <windows.h>

namespace {

// The shortest of the platform's limits: that of a folder which must still hold an 8.3 name.
constexpr std::size_t kShortPathLimit = 248;

// GetFullPathNameW; empty on failure.
std::wstring FullPath(const std::wstring& path) {
    const DWORD needed = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    if (needed == 0)
        return {};
    std::wstring full(needed, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), needed, full.data(), nullptr));
    return full;
}

std::wstring WithoutLengthLimit(const std::wstring& fullPath) {
    if (fullPath.starts_with(LR"(\\?\)") || fullPath.starts_with(LR"(\\.\)"))
        return fullPath;
    if (fullPath.starts_with(LR"(\\)"))
        return LR"(\\?\UNC\)" + fullPath.substr(2);
    return LR"(\\?\)" + fullPath;
}

} // namespace

std::wstring ToPlatformPath(const std::string& utf8) {
    if (utf8.find('\0') != std::string::npos)
        return {};
    std::wstring path = ToUtf16(utf8);
    const std::wstring full = FullPath(path);
    return full.size() < kShortPathLimit ? path : WithoutLengthLimit(full);
}

std::wstring ToAbsolutePlatformPath(const std::string& utf8) {
    const std::wstring path = ToPlatformPath(utf8);
    const std::wstring full = FullPath(path);
    return full.empty() ? path : full;
}
