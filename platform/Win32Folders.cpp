#include "platform/Win32Folders.h"

#include "common/FileNames.h"
#include "platform/FileSearch.h"
#include "platform/PlatformPath.h"
#include "platform/Utf16.h"

#include <shlobj.h>
#include <windows.h>

namespace {

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(ToPlatformPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace

bool Win32Folders::Make(const std::string& path) {
    if (path.empty() || IsFolder(path))
        return !path.empty();
    const std::string above = FilePathPart(path);
    if (above.empty() || !Make(above.substr(0, above.size() - 1)))
        return false;
    return CreateDirectoryW(ToPlatformPath(path).c_str(), nullptr) != FALSE || IsFolder(path);
}

std::vector<std::string> Win32Folders::FileNamesIn(const std::string& path) {
    std::vector<std::string> names;
    ForEachFound(path + "\\*", [&](const WIN32_FIND_DATAW& found) {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            names.push_back(ToUtf8(found.cFileName));
        return true;
    });
    return names;
}

std::string LocalDataFolder() {
    PWSTR path = nullptr;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &path);
    std::string folder = SUCCEEDED(result) ? ToUtf8(path) : std::string();
    CoTaskMemFree(path); // also after a failure
    return folder;
}
