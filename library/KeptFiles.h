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
// as "NAME (kept YYYY-MM-DD hhmmss).tnt"; NAME has its extension when that is another one.
class KeptFiles {
public:
    KeptFiles(Files& files, const CalendarClock& clock) : files_(files), clock_(clock) {}

    // This is the file that the library, by its main key, is read from or was written to last.
    // Nothing is known yet of what it holds of it.
    void SetSource(const std::string& mainKey, const std::string& path) {
        sources_[mainKey] = {path, {}};
    }

    // The library holds all of this content of its source.
    void Remember(const std::string& mainKey, std::string_view content);

    // Letters of A to Z count in either case.
    [[nodiscard]] bool IsSource(const std::string& path, const std::string& mainKey) const;

    // Before a save of the library replaces the file: the path under which its content stays, empty
    // when there is nothing to keep.  Nothing when the content could not be read or kept: the file
    // must not be replaced then.
    [[nodiscard]] std::optional<std::string> KeepUnknown(const std::string& path,
                                                         const std::string& mainKey);

private:
    struct Source {
        std::string path;
        std::optional<ContentFingerprint> held; // nothing: not all of its content
    };

    [[nodiscard]] bool IsHeld(const std::string& mainKey, std::string_view content) const;

    Files& files_;
    const CalendarClock& clock_;
    std::map<std::string, Source> sources_; // by main key
};
