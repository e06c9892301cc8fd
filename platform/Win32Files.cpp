#include "platform/Win32Files.h"

#include "common/FileNames.h"
#include "platform/FileSearch.h"
#include "platform/KernelHandle.h"
#include "platform/PlatformPath.h"
#include "platform/ReplaceFailure.h"
#include "platform/Utf16.h"
#include "platform/Win32FileTurn.h"
#include "platform/Win32OutputFile.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr LONGLONG kLargestFile = 1LL << 30;    // a longer file is not read
constexpr std::size_t kLargestRead = 1U << 24U; // one call counts in 32 bits

bool IsNormalFile(const WIN32_FIND_DATAW& found) {
    constexpr DWORD kSkipped =
        FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    return (found.dwFileAttributes & kSkipped) == 0;
}

bool IsReadOnly(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(ToPlatformPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool Move(const std::string& from, const std::string& to, DWORD flags) {
    // Wine would move them.
    if (IsReadOnly(from) || IsReadOnly(to))
        return false;
    return MoveFileExW(ToPlatformPath(from).c_str(), ToPlatformPath(to).c_str(), flags) != FALSE;
}

struct FileIdentity {
    DWORD volume;
    std::uint64_t number; // of the file on it
    bool operator==(const FileIdentity&) const = default;
};

KernelHandle OpenAttributes(const std::string& path) {
    constexpr DWORD kShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return KernelHandle(CreateFileW(ToPlatformPath(path).c_str(), FILE_READ_ATTRIBUTES, kShare,
                                    nullptr, OPEN_EXISTING, 0, nullptr));
}

// Nothing where the volume has no number for the file: 0, or all bits set.
std::optional<FileIdentity> IdentityOf(const KernelHandle& file) {
    constexpr std::uint64_t kNone = ~std::uint64_t{0};
    BY_HANDLE_FILE_INFORMATION known{};
    if (GetFileInformationByHandle(file.Get(), &known) == FALSE)
        return std::nullopt;
    const std::uint64_t number = std::uint64_t{known.nFileIndexHigh} << 32U | known.nFileIndexLow;
    return number != 0 && number != kNone
               ? std::optional(FileIdentity{known.dwVolumeSerialNumber, number})
               : std::nullopt;
}

std::optional<std::size_t> ReadableSize(HANDLE file) {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size) || size.QuadPart > kLargestFile)
        return std::nullopt;
    return static_cast<std::size_t>(size.QuadPart);
}

std::optional<std::string> ReadBytes(HANDLE file, std::size_t size) {
    std::string content(size, '\0');
    std::size_t done = 0;
    while (done < size) {
        const auto part = static_cast<DWORD>(std::min(size - done, kLargestRead));
        DWORD read = 0;
        if (!ReadFile(file, content.data() + done, part, &read, nullptr))
            return std::nullopt;
        if (read == 0)
            break;
        done += read;
    }
    content.resize(done);
    return content;
}

} // namespace

std::string Win32Files::FindNormalFile(const std::string& path) {
    if (path.empty() || path.back() == '\\' || path.back() == '/')
        return {};
    std::string name;
    ForEachFound(path, [&](const WIN32_FIND_DATAW& found) {
        if (IsNormalFile(found))
            name = ToUtf8(found.cFileName);
        return name.empty();
    });
    return name;
}

bool Win32Files::Exists(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(ToPlatformPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// Both are open while they are compared: a number may go to another file when its own is gone.
bool Win32Files::AreSame(const std::string& path, const std::string& other) {
    const KernelHandle one = OpenAttributes(path);
    const KernelHandle two = OpenAttributes(other);
    if (!one || !two)
        return false;
    const auto first = IdentityOf(one);
    const auto second = IdentityOf(two);
    return !first || !second || *first == *second;
}

std::optional<std::string> Win32Files::ReadWhole(const std::string& path) {
    const KernelHandle file(CreateFileW(ToPlatformPath(path).c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file)
        return std::nullopt;
    const std::optional<std::size_t> size = ReadableSize(file.Get());
    return size ? ReadBytes(file.Get(), *size) : std::nullopt;
}

bool Win32Files::IsTaken(const std::string& path) {
    return GetFileAttributesW(ToPlatformPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::unique_ptr<OutputFile> Win32Files::Create(const std::string& path) {
    KernelHandle file(CreateFileW(ToPlatformPath(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
        return nullptr;
    return std::make_unique<Win32OutputFile>(std::move(file));
}

bool Win32Files::Rename(const std::string& from, const std::string& to) {
    return Move(from, to, MOVEFILE_WRITE_THROUGH);
}

bool Win32Files::Replace(const std::string& from, const std::string& to) {
    return Move(from, to, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

Exchanged Win32Files::Exchange(const std::string& from, const std::string& to,
                               const std::string& backup) {
    if (IsReadOnly(to) || IsReadOnly(backup))
        return Exchanged::Unchanged;
    // Wine would not find a relative one.
    const std::wstring fromPath = ToAbsolutePlatformPath(from);
    const std::wstring toPath = ToAbsolutePlatformPath(to);
    const std::wstring backupPath = ToAbsolutePlatformPath(backup);
    if (ReplaceFileW(toPath.c_str(), fromPath.c_str(),
                     backup.empty() ? nullptr : backupPath.c_str(), REPLACEFILE_IGNORE_MERGE_ERRORS,
                     nullptr, nullptr))
        return Exchanged::Done;
    return AfterFailedReplace(GetLastError(), !backup.empty());
}

bool Win32Files::Remove(const std::string& path) {
    return DeleteFileW(ToPlatformPath(path).c_str()) != FALSE;
}

std::unique_ptr<FileTurn> Win32Files::TakeTurn(const std::string& path) {
    return Win32FileTurn::Take(PathWithSuffix(path, ".turn"));
}
