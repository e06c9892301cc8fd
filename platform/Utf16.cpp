#include "platform/Utf16.h"

#include "common/RuntimeError.h"

#include <limits>
#include <windows.h>

namespace {

// The platform counts characters in an int; UTF-8 may need three bytes for one UTF-16 unit.
int PlatformLength(std::size_t length) {
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max() / 3))
        throw RuntimeError(ErrorNumber::Overflow, ErrorTexts::TextTooLong);
    return static_cast<int>(length);
}

} // namespace

std::wstring ToUtf16(std::string_view utf8) {
    const int length = PlatformLength(utf8.size());
    if (length == 0)
        return {};
    const int needed = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
    std::wstring utf16(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, utf16.data(), needed);
    return utf16;
}

std::string ToUtf8(std::wstring_view utf16) {
    const int length = PlatformLength(utf16.size());
    if (length == 0)
        return {};
    const int needed =
        WideCharToMultiByte(CP_UTF8, 0, utf16.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, utf16.data(), length, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}
