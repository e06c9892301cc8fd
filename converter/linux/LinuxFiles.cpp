#include "converter/linux/LinuxFiles.h"

#include "converter/linux/OpenFile.h"
#include "converter/linux/WriteAll.h"

#include <cstdio>
#include <filesystem>
#include <sys/stat.h>
#include <utility>

namespace {

constexpr std::size_t kLargestFile = std::size_t{1} << 30U;
constexpr std::size_t kPiece = std::size_t{1} << 20U;

class LinuxOutputFile : public OutputFile {
public:
    explicit LinuxOutputFile(OpenFile file) noexcept : file_(std::move(file)) {}

    [[nodiscard]] bool Write(std::string_view bytes) override {
        return WriteAll(file_.Number(), bytes);
    }
    [[nodiscard]] bool Flush() override { return fsync(file_.Number()) == 0; }
    [[nodiscard]] bool Close() override { return file_.Close(); }

private:
    OpenFile file_;
};

// Nothing when there is no such file; a link is what it leads to.
std::optional<struct stat> StateOf(const std::string& path) {
    struct stat state {};
    return stat(path.c_str(), &state) == 0 ? std::optional(state) : std::nullopt;
}

// The user may not write it, as its mode says; the administrator's process could do it all the
// same.
bool IsReadOnly(const std::string& path) {
    const auto state = StateOf(path);
    return state && (state->st_mode & S_IWUSR) == 0;
}

// A pipe tells its size at its end only.
bool IsTooLarge(const OpenFile& file) {
    struct stat state {};
    return file && fstat(file.Number(), &state) == 0 &&
           state.st_size > static_cast<off_t>(kLargestFile);
}

bool MayBeReplaced(const std::string& path) {
    const auto state = StateOf(path);
    return !state || (S_ISREG(state->st_mode) && !IsReadOnly(path));
}

// A new name is on the medium when its folder is.
bool FlushFolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    const OpenFile open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
    return open && fsync(open.Number()) == 0;
}

// Not all file systems can refuse a name that is taken.
bool MoveToFreeName(const std::string& from, const std::string& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    struct stat state {};
    return errno == EINVAL && lstat(to.c_str(), &state) != 0 &&
           std::rename(from.c_str(), to.c_str()) == 0;
}

// Those of the place; the owner stays another one when the user may not give files away.
bool TakeOverRights(const std::string& from, const std::string& to) {
    const auto place = StateOf(to);
    if (!place)
        return false;
    [[maybe_unused]] const int owner = chown(from.c_str(), place->st_uid, place->st_gid);
    return chmod(from.c_str(), place->st_mode & 07777U) == 0;
}

} // namespace

std::string LinuxFiles::FindNormalFile(const std::string& path) {
    return Exists(path) ? std::filesystem::path(path).filename().string() : std::string();
}

bool LinuxFiles::Exists(const std::string& path) {
    const auto state = StateOf(path);
    return state && !S_ISDIR(state->st_mode);
}

bool LinuxFiles::AreSame(const std::string& path, const std::string& other) {
    const auto one = StateOf(path);
    const auto two = StateOf(other);
    return one && two && one->st_dev == two->st_dev && one->st_ino == two->st_ino;
}

std::optional<std::string> LinuxFiles::ReadWhole(const std::string& path) {
    const OpenFile file(path.c_str(), O_RDONLY);
    if (IsTooLarge(file))
        return std::nullopt;
    std::string content;
    ssize_t count = file ? 1 : -1;
    for (std::size_t size = 0; count > 0 && size <= kLargestFile;) {
        content.resize(size + kPiece);
        count = read(file.Number(), content.data() + size, kPiece);
        size += count > 0 ? static_cast<std::size_t>(count) : 0;
        content.resize(size);
    }
    return count == 0 ? std::optional(std::move(content)) : std::nullopt;
}

bool LinuxFiles::IsTaken(const std::string& path) {
    struct stat state {};
    return lstat(path.c_str(), &state) == 0;
}

std::unique_ptr<OutputFile> LinuxFiles::Create(const std::string& path) {
    OpenFile file(path.c_str(), O_WRONLY | O_CREAT | O_EXCL);
    return file ? std::make_unique<LinuxOutputFile>(std::move(file)) : nullptr;
}

bool LinuxFiles::Rename(const std::string& from, const std::string& to) {
    return !IsReadOnly(from) && MoveToFreeName(from, to) && FlushFolderOf(to);
}

bool LinuxFiles::Replace(const std::string& from, const std::string& to) {
    return !IsReadOnly(from) && MayBeReplaced(to) && std::rename(from.c_str(), to.c_str()) == 0 &&
           FlushFolderOf(to);
}

Exchanged LinuxFiles::Exchange(const std::string& from, const std::string& to,
                               const std::string& backup) {
    if (!backup.empty())
        return Exchanged::NotSupported;
    std::error_code error;
    const std::string place = std::filesystem::canonical(to, error).string();
    if (error || !MayBeReplaced(place) || !TakeOverRights(from, place))
        return Exchanged::Unchanged;
    return Replace(from, place) ? Exchanged::Done : Exchanged::Unchanged;
}

bool LinuxFiles::Remove(const std::string& path) {
    return unlink(path.c_str()) == 0;
}

std::unique_ptr<FileTurn> LinuxFiles::TakeTurn(const std::string&) {
    return nullptr;
}
