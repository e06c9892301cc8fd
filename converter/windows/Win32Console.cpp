#include "converter/windows/Win32Console.h"

#include "platform/Utf16.h"

#include <algorithm>
#include <windows.h>

namespace {

constexpr std::size_t kLargestWrite = 8192; // older systems take no more at once for a console

bool IsConsole(HANDLE output) {
    DWORD mode = 0;
    return GetConsoleMode(output, &mode) != FALSE;
}

bool WriteCharacters(HANDLE output, std::wstring_view text) {
    while (!text.empty()) {
        const auto part = static_cast<DWORD>(std::min(text.size(), kLargestWrite));
        DWORD written = 0;
        if (!WriteConsoleW(output, text.data(), part, &written, nullptr) || written == 0)
            return false;
        text.remove_prefix(written);
    }
    return true;
}

bool WriteBytes(HANDLE output, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto part = static_cast<DWORD>(std::min(bytes.size(), kLargestWrite));
        DWORD written = 0;
        if (!WriteFile(output, bytes.data(), part, &written, nullptr) || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

bool WriteTo(DWORD stream, std::string_view text) {
    const HANDLE output = GetStdHandle(stream);
    return IsConsole(output) ? WriteCharacters(output, ToUtf16(text)) : WriteBytes(output, text);
}

} // namespace

bool Win32Console::Write(std::string_view text) {
    return WriteTo(STD_OUTPUT_HANDLE, text);
}

void Win32Console::Tell(std::string_view text) {
    // Where it does not get through there is nobody else to be told.
    static_cast<void>(WriteTo(STD_ERROR_HANDLE, text));
}

bool Win32Console::IsWatched() const {
    return IsConsole(GetStdHandle(STD_ERROR_HANDLE));
}
