#include "library/SafeFileWriter.h"

#include "common/FileNames.h"

namespace {

bool IsInsideCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; // of UTF-8
}

std::string BackupOf(const std::string& path) {
    return path + ".bak";
}

// A name that has no room left for the suffix loses as much of its end; it is never cut inside a
// character.
std::string BesideOf(const std::string& path) {
    constexpr std::string_view kSuffix = ".saving";
    constexpr std::size_t kLongestName = 255; // counted in bytes, which no file system exceeds
    const std::string folder = FilePathPart(path);
    std::string name = FileNamePart(path);
    if (name.size() + kSuffix.size() > kLongestName) {
        std::size_t kept = kLongestName - kSuffix.size();
        while (IsInsideCharacter(name[kept]))
            --kept;
        name.resize(kept);
    }
    return folder + name.append(kSuffix);
}

} // namespace

bool SafeFileWriter::Write(const std::string& path, std::string_view content, bool keepBackup) {
    const std::string besidePath = BesideOf(path);
    if (!WriteBeside(besidePath, content))
        return false;
    if (TakePlace(besidePath, path, keepBackup))
        return true;
    files_.Remove(besidePath);
    return false;
}

bool SafeFileWriter::MoveToBackup(const std::string& path) {
    return !files_.Exists(path) || files_.Replace(path, BackupOf(path));
}

bool SafeFileWriter::WriteBeside(const std::string& path, std::string_view content) {
    const std::unique_ptr<OutputFile> file = files_.Create(path);
    if (!file)
        return false; // possibly another program's file: it is not ours to remove
    const bool written = file->Write(content) && file->Flush();
    const bool closed = file->Close();
    if (written && closed)
        return true;
    files_.Remove(path);
    return false;
}

bool SafeFileWriter::TakePlace(const std::string& besidePath, const std::string& path,
                               bool keepBackup) {
    const bool backedUp = keepBackup && files_.Exists(path);
    if (backedUp && !MoveToBackup(path))
        return false;
    if (files_.Replace(besidePath, path))
        return true;
    if (backedUp) // where this fails too, the old content stays under its backup name
        static_cast<void>(files_.Replace(BackupOf(path), path));
    return false;
}
