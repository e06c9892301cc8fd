#include "platform/LibrarySearch.h"

#include <windows.h>

void SearchSystemLibrariesOnly() noexcept {
    // The folders that an extension names itself, by AddDllDirectory, stay in.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32 | LOAD_LIBRARY_SEARCH_USER_DIRS);
    SetDllDirectoryW(L"");
}
