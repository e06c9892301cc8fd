#include "library/SafeFileWriter.h"

namespace {

std::string BackupOf(const std::string& path) {
    return path + ".bak";
}

std::string BesideOf(const std::string& path) {
    return path + ".saving";
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
