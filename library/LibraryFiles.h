#pragma once

#include "common/RuntimeError.h"
#include "common/ports/AnsiCodePage.h"
#include "common/ports/CalendarClock.h"
#include "common/ports/Files.h"
#include "library/ColorLibrary.h"
#include "library/KeptFiles.h"
#include "library/SaveLosses.h"
#include "library/SavedStates.h"
#include "library/WorkProgress.h"

#include <optional>
#include <string>
#include <string_view>

enum class ReadResult { Complete, Missing, Unreadable, Invalid, Failed };

struct ReadOutcome {
    ReadResult result = ReadResult::Missing;
    std::string mainKey{};               // of the library that was added; empty: none
    std::optional<RuntimeError> error{}; // of Failed; names file and line
};

// What a save does to a content of the file that the program does not hold: it stays beside the new
// one, or it is given up, as the user was asked.
enum class UnknownContent { Kept, GivenUp };

struct SaveTarget {
    std::string fileName;
    std::string mainKey;
    bool keepsBackup = true;
    UnknownContent unknown = UnknownContent::Kept;
};

struct WriteResult {
    bool isWritten = false;
    std::string keptPath; // where an unknown content stays; empty: there was none
};

// A library as its file will be.
struct ComposedLibrary {
    std::string bytes;
    SaveLosses losses;
};

// Reads library files into new main nodes, and writes main nodes to library files.
class LibraryFiles {
public:
    struct Ports {
        Files& files;
        const AnsiCodePage& codePage;
        const CalendarClock& clock;
    };

    LibraryFiles(ColorLibrary& library, const Ports& ports)
        : library_(library), ports_(ports), keptFiles_(ports.files, ports.clock) {}

    // A file that is not Complete leaves a library with what could be read when it has a header at
    // least.  Failed: a value is no 16-bit number.
    [[nodiscard]] ReadOutcome Read(const std::string& fileName, WorkProgress& progress);

    // Of a library with groups.
    [[nodiscard]] ComposedLibrary Compose(const std::string& mainKey, WorkProgress& progress) const;

    // Nothing is written when the platform reported a failure.  The old content is never lost.
    WriteResult Write(const SaveTarget& target, std::string_view bytes);

    // The backup step alone, with what is to be kept: the kept content's path, empty for none.
    // Nothing when it failed.
    [[nodiscard]] std::optional<std::string> BackUp(const SaveTarget& target);

    // What has happened to the open libraries since they were read or written.
    [[nodiscard]] const SavedStates& States() const noexcept { return savedStates_; }

    // The library is like no file from now on.
    void ForgetFile(const std::string& mainKey);

    // The content of the library's file when it was read whole or written last.
    [[nodiscard]] std::optional<ContentFingerprint> FingerprintOfFile(LibraryId library) const {
        return keptFiles_.Held(library);
    }

private:
    // The kept content's path, empty for none; nothing when the file has to stay where it is.
    [[nodiscard]] std::optional<std::string> Keep(const SaveTarget& target);
    void RemoveCopy(std::string& keptPath, const std::string& fileName);
    ColorLibrary& library_;
    Ports ports_;
    KeptFiles keptFiles_;
    SavedStates savedStates_{library_};
};
