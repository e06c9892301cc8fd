#pragma once

#include "common/ports/CalendarClock.h"
#include "common/ports/Files.h"
#include "library/ContentFingerprint.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

// Sees to it that no save destroys what the program does not hold.  It remembers for each library
// which content of its file the library has in it; any other content of a file that is about to be
// replaced (changed by someone else, read only in part, of another library) stays beside that file
// as "NAME (kept YYYY-MM-DD hhmmss).tnt".
class KeptFiles {
public:
    KeptFiles(Files& files, const CalendarClock& clock) : files_(files), clock_(clock) {}

    // The library, by its main key, holds all of this content: it was read from it or written as
    // it.
    void Remember(const std::string& mainKey, std::string_view content);

    // The library holds no file's content any more, or not all of it.
    void Forget(const std::string& mainKey) { held_.erase(mainKey); }

    // Before a save of the library replaces the file: the path under which its content stays, empty
    // when there is nothing to keep.  Nothing when the content could not be read or kept: the file
    // must not be replaced then.
    [[nodiscard]] std::optional<std::string> KeepUnknown(const std::string& path,
                                                         const std::string& mainKey);

private:
    [[nodiscard]] bool IsHeld(const std::string& mainKey, std::string_view content) const;

    Files& files_;
    const CalendarClock& clock_;
    std::map<std::string, ContentFingerprint> held_; // by main key
};
