#pragma once

#include "common/ports/Files.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Replaces a file's content so that, whatever happens in between, the old or the new content exists
// whole on the disk: under the file's name, under its ".bak" name, or, when the platform stopped in
// the middle of a replacement without a backup, under the new content's name beside it.
//
// The new content goes to a new file beside the target, is flushed to the medium, and takes the
// target's place, with what belongs to it as access rights and the creation time, only when it is
// complete.
class SafeFileWriter {
public:
    // False: the old file is to stay.
    using LastLook = std::function<bool()>;

    explicit SafeFileWriter(Files& files) : files_(files) {}

    // keepBackup: the old file becomes path + ".bak", replacing an older backup.  lastLook: called
    // when the new content is on the medium and the old one is about to go.  Anything but Done: a
    // step failed, also because the backup's name would be longer than the file system allows.
    // Unchanged: what had the path has it still; OldIsBackup: it is the backup now; OldIsGone: the
    // new content is all that there is, under its own name.
    [[nodiscard]] Exchanged Write(
        const std::string& path, std::string_view content, bool keepBackup,
        const LastLook& lastLook = [] { return true; });

    // The same for a file that is not there yet: one that is there, or comes meanwhile, is never
    // replaced.  False: nothing is written.
    [[nodiscard]] bool WriteNew(const std::string& path, std::string_view content);

    // The backup step alone.  True when there was nothing to keep or the backup stands.
    [[nodiscard]] bool MoveToBackup(const std::string& path);

private:
    // The path of the new file beside the target; nothing when it could not be written.
    [[nodiscard]] std::optional<std::string> WriteBeside(const std::string& path,
                                                         std::string_view content);
    [[nodiscard]] bool MayGo(const LastLook& lastLook, const std::string& besidePath);
    [[nodiscard]] Exchanged TakePlace(const std::string& besidePath, const std::string& path,
                                      const std::string& backup);
    [[nodiscard]] Exchanged Exchange(const std::string& besidePath, const std::string& path,
                                     const std::string& backup);

    Files& files_;
};
