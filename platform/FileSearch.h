#pragma once

#include "platform/PlatformPath.h"
#include "platform/UniqueHandle.h"

#include <string>
#include <windows.h>

struct FileSearchTraits {
    using Handle = HANDLE;
    static Handle None() noexcept { return INVALID_HANDLE_VALUE; }
    static bool Close(Handle search) noexcept { return FindClose(search) != FALSE; }
};

// Shows a visitor everything that a pattern finds, folders too, in the order of the file system,
// for as long as it returns true.
template <typename Visitor>
void ForEachFound(const std::string& pattern, const Visitor& visit) {
    WIN32_FIND_DATAW found{};
    const UniqueHandle<FileSearchTraits> search(
        FindFirstFileExW(ToPlatformPath(pattern).c_str(), FindExInfoBasic, &found,
                         FindExSearchNameMatch, nullptr, 0));
    for (bool more = static_cast<bool>(search); more;
         more = FindNextFileW(search.Get(), &found) != FALSE)
        if (!visit(found))
            return;
}
