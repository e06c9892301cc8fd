#pragma once

#include "common/ports/CalendarClock.h"
#include "common/ports/Files.h"
#include "library/ByLibrary.h"
#include "library/ContentFingerprint.h"

#include <optional>
#include <string>
#include <string_view>

// Sees to it that no save destroys what the program does not hold.  It remembers for each library
// which content of its file the library has in it; any other content of a file that is about to be
// replaced (changed by someone else, read only in part, of another library) stays beside that file
// as "NAME (kept YYYY-MM-DD hhmmss).tnt"; NAME has its extension when that is another one.
class KeptFiles {
public:
    KeptFiles(Files& files, const CalendarClock& clock) : files_(files), clock_(clock) {}

    // The library holds all of this content.
    void Remember(const LibraryNode& library, std::string_view content);

    // The library holds none.
    void Forget(LibraryId library) { held_.Erase(library); }

    // Before a save of the library replaces the file: the path under which its content stays, empty
    // when there is nothing to keep.  Nothing when the content could not be read or kept: the file
    // must not be replaced then.
    [[nodiscard]] std::optional<std::string> KeepUnknown(const std::string& path,
                                                         LibraryId library);

    // The content that the library holds all of; nothing: there is none.
    [[nodiscard]] std::optional<ContentFingerprint> Held(LibraryId library) const;

private:
    [[nodiscard]] bool IsHeld(LibraryId library, std::string_view content) const;

    Files& files_;
    const CalendarClock& clock_;
    ByLibrary<ContentFingerprint> held_;
};
