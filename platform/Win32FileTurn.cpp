#include "platform/Win32FileTurn.h"

#include "platform/PlatformPath.h"

#include <windows.h>

namespace {

constexpr DWORD kPause = 5;       // milliseconds between two tries
constexpr DWORD kPatience = 5000; // milliseconds

KernelHandle OpenAlone(const std::string& path) {
    return KernelHandle(CreateFileW(ToPlatformPath(path).c_str(), GENERIC_READ | DELETE, 0, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_TEMPORARY,
                                    nullptr));
}

// Open elsewhere, or about to be deleted there.
bool IsOfSomebodyElse(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

// A file with something in it is somebody's, though it has the name: it stays.
void DeleteAtTheEnd(HANDLE file) {
    LARGE_INTEGER size{};
    FILE_DISPOSITION_INFO disposition{TRUE};
    if (GetFileSizeEx(file, &size) && size.QuadPart == 0)
        SetFileInformationByHandle(file, FileDispositionInfo, &disposition, sizeof disposition);
}

} // namespace

std::unique_ptr<FileTurn> Win32FileTurn::Take(const std::string& path) {
    for (DWORD waited = 0; waited <= kPatience; waited += kPause) {
        KernelHandle file = OpenAlone(path);
        if (file) {
            DeleteAtTheEnd(file.Get());
            return std::make_unique<Win32FileTurn>(std::move(file));
        }
        if (!IsOfSomebodyElse(GetLastError()))
            return nullptr;
        Sleep(kPause);
    }
    return nullptr;
}
