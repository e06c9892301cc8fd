#include "library/SafeFileWriter.h"

#include "common/FileNames.h"
#include "library/WriteNewFile.h"

namespace {

std::string BackupOf(const std::string& path) {
    return path + ".bak";
}

// number: from 1; the first has none in its name.
std::string BesideOf(const std::string& path, int number) {
    return PathWithSuffix(path, number == 1 ? ".saving" : ".saving" + std::to_string(number));
}

} // namespace

Exchanged SafeFileWriter::Write(const std::string& path, std::string_view content, bool keepBackup,
                                const LastLook& lastLook) {
    const std::optional<std::string> besidePath = WriteBeside(path, content);
    if (!besidePath)
        return Exchanged::Unchanged;
    const Exchanged outcome =
        MayGo(lastLook, *besidePath)
            ? TakePlace(*besidePath, path, keepBackup ? BackupOf(path) : std::string())
            : Exchanged::Unchanged;
    if (outcome == Exchanged::Unchanged || outcome == Exchanged::OldIsBackup)
        files_.Remove(*besidePath);
    return outcome;
}

bool SafeFileWriter::WriteNew(const std::string& path, std::string_view content) {
    const std::optional<std::string> besidePath = WriteBeside(path, content);
    const bool isThere = besidePath && files_.Rename(*besidePath, path);
    if (besidePath && !isThere)
        files_.Remove(*besidePath);
    return isThere;
}

std::optional<std::string> SafeFileWriter::WriteBeside(const std::string& path,
                                                       std::string_view content) {
    return WriteNewFile(
        files_, [&](int number) { return BesideOf(path, number); }, content);
}

bool SafeFileWriter::MayGo(const LastLook& lastLook, const std::string& besidePath) {
    try {
        return lastLook();
    } catch (...) {
        files_.Remove(besidePath);
        throw;
    }
}

bool SafeFileWriter::MoveToBackup(const std::string& path) {
    return !files_.Exists(path) || files_.Replace(path, BackupOf(path));
}

// Done, or what is left after everything that can be mended was.
Exchanged SafeFileWriter::TakePlace(const std::string& besidePath, const std::string& path,
                                    const std::string& backup) {
    if (!files_.Exists(path))
        return files_.Rename(besidePath, path) ? Exchanged::Done : Exchanged::Unchanged;
    const Exchanged outcome = Exchange(besidePath, path, backup);
    if (outcome != Exchanged::OldIsBackup && outcome != Exchanged::OldIsGone)
        return outcome;
    if (files_.Rename(besidePath, path))
        return Exchanged::Done;
    // Where this fails too, the old content stays under its backup name.
    if (outcome == Exchanged::OldIsBackup && files_.Rename(backup, path))
        return Exchanged::Unchanged;
    return outcome;
}

Exchanged SafeFileWriter::Exchange(const std::string& besidePath, const std::string& path,
                                   const std::string& backup) {
    const Exchanged outcome = files_.Exchange(besidePath, path, backup);
    if (outcome != Exchanged::NotSupported)
        return outcome;
    if (backup.empty())
        return files_.Replace(besidePath, path) ? Exchanged::Done : Exchanged::Unchanged;
    return files_.Replace(path, backup) ? Exchanged::OldIsBackup : Exchanged::Unchanged;
}
