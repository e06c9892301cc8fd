#pragma once

#include "common/ports/Files.h"

#include <string>
#include <string_view>

// Replaces a file's content so that, whatever happens in between, the old or the new content exists
// whole under the file's name or under its ".bak" name.
//
// The new content goes to a file beside the target, is flushed to the medium, and takes the
// target's place only when it is complete.
class SafeFileWriter {
public:
    explicit SafeFileWriter(Files& files) : files_(files) {}

    // keepBackup: the old file first becomes path + ".bak", replacing an older backup.  False when
    // a step failed, also when the backup's name would be longer than the file system allows; the
    // old content is then still under the path, or under ".bak" at the least.
    [[nodiscard]] bool Write(const std::string& path, std::string_view content, bool keepBackup);

    // The backup step alone.  True when there was nothing to keep or the backup stands.
    [[nodiscard]] bool MoveToBackup(const std::string& path);

private:
    [[nodiscard]] bool WriteBeside(const std::string& path, std::string_view content);
    [[nodiscard]] bool TakePlace(const std::string& besidePath, const std::string& path,
                                 bool keepBackup);

    Files& files_;
};
