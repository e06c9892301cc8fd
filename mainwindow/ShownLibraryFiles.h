#pragma once

#include "common/Settings.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/ProgressView.h"
#include "common/ports/Prompts.h"
#include "library/LibraryFiles.h"
#include "mainwindow/LibraryPanes.h"

#include <string>

// Reads and writes library files in front of the user: the progress window shows how far the work
// is, messages tell what is wrong with a file, and the list shows what was read.
class ShownLibraryFiles {
public:
    struct Parts {
        LibraryFiles& files;
        const ColorLibrary& library;
        LibraryPanes& panes;
        const Settings& settings;
        Prompts& prompts;
        InfoTexts& texts;
        ProgressView& progress;
    };

    explicit ShownLibraryFiles(const Parts& parts) : parts_(parts) {}

    // The invalid-file message is shown when it is no library file; what was added until then
    // stays.  Missing and unreadable files give no message.  Throws RuntimeError for a value that
    // is no 16-bit number.
    ReadResult Read(const std::string& fileName);
    // The same; true when all of it was read.
    bool FileReadColorValues(const std::string& fileName) {
        return Read(fileName) == ReadResult::Complete;
    }

    // Nothing is written when there are no groups (with a message), the user cancelled, or the
    // platform reported a failure.  The old content is never lost.
    WriteResult FileWriteColorValues(const std::string& fileName, const std::string& mainKey,
                                     UnknownContent unknown = UnknownContent::Kept);

private:
    WriteResult RefuseWithoutGroups(const SaveTarget& target);
    [[nodiscard]] bool AcceptLosses(const SaveLosses& losses);

    Parts parts_;
};
