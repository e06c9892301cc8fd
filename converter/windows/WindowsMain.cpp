#include "converter/Converter.h"
#include "converter/windows/Win32Console.h"
#include "platform/LibrarySearch.h"
#include "platform/Utf16.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"

#include <windows.h>

namespace {

// Those with shift sequences and the like cannot be a system's own.
bool CanBeTheSystems(unsigned codePage) {
    CPINFO info{};
    return GetCPInfo(codePage, &info) != FALSE && (info.MaxCharSize <= 2 || codePage == CP_UTF8);
}

std::unique_ptr<AnsiCodePage> CodePageOf(std::optional<unsigned> number) {
    const unsigned wanted = number.value_or(GetACP());
    return CanBeTheSystems(wanted) ? std::make_unique<Win32AnsiCodePage>(wanted) : nullptr;
}

std::vector<std::string> Utf8Arguments(int count, wchar_t** values) {
    std::vector<std::string> arguments;
    for (int index = 1; index < count; ++index)
        arguments.push_back(ToUtf8(values[index]));
    return arguments;
}

} // namespace

int wmain(int count, wchar_t** values) {
    SearchSystemLibrariesOnly();
    // A drive without a disk is a file that cannot be read, not a question.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    Win32Files files;
    Win32Console console;
    return static_cast<int>(
        RunConverter(Utf8Arguments(count, values), TNT_VERSION, {files, console, CodePageOf}));
}
