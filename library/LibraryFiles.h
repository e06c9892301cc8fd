#pragma once

#include "common/Settings.h"
#include "common/ports/AnsiCodePage.h"
#include "common/ports/CalendarClock.h"
#include "common/ports/Files.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/ProgressView.h"
#include "common/ports/Prompts.h"
#include "library/ColorLibrary.h"
#include "library/DecodedLines.h"
#include "library/EncodedText.h"
#include "library/KeptFiles.h"
#include "library/LibraryHost.h"
#include "library/SaveLosses.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

enum class ReadResult { Complete, Missing, Unreadable, Invalid };

// What a save does to a content of the file that the program does not hold: it stays beside the new
// one, or it is given up, as the user was asked.
enum class UnknownContent { Kept, GivenUp };

struct WriteResult {
    bool isWritten = false;
    std::string keptPath; // where an unknown content stays; empty: there was none
};

// Reads a library file into a new main node, and writes a main node to a library file.  Both show
// the progress window while they work.
class LibraryFiles {
public:
    struct Ports {
        Files& files;
        const AnsiCodePage& codePage;
        Prompts& prompts;
        InfoTexts& texts;
        ProgressView& progress;
        const CalendarClock& clock;
    };

    LibraryFiles(ColorLibrary& library, const Settings& settings, const Ports& ports)
        : library_(library), settings_(settings), ports_(ports),
          keptFiles_(ports.files, ports.clock) {}

    // Must be called before any other operation.
    void SetHost(LibraryHost& host) noexcept { host_ = &host; }

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

    // Whether this is the file that the library was read from or written to last.  Its tag may tell
    // another one, or none.
    [[nodiscard]] bool IsSource(const std::string& fileName, const std::string& mainKey) const {
        return keptFiles_.IsSource(fileName, mainKey);
    }

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept {
            return std::hash<std::string_view>()(text);
        }
    };
    // The groups of a file by their keys as saved.
    using SavedGroups =
        std::unordered_map<std::string, ColorTable::GroupNumber, TextHash, std::equal_to<>>;
    // A library while its file is read.
    struct Reading {
        std::string mainKey;
        bool isHeldWhole = true; // everything that stood in the file until now
        SavedGroups groups{};
    };

    bool ReadContent(std::string_view bytes, const std::string& fileName);
    bool ReadRecords(DecodedLines& lines, Reading& reading);
    bool ReadGroup(std::string_view line, Reading& reading);
    bool ReadColor(std::string_view line, std::string_view separator, Reading& reading,
                   std::uint32_t number);
    bool RefuseInvalidFile(const std::string& fileName);
    WriteResult RefuseWithoutGroups(const std::string& fileName, const std::string& mainKey,
                                    UnknownContent unknown);
    void RemoveCopy(WriteResult& result, const std::string& fileName);
    [[nodiscard]] bool Keep(const std::string& fileName, const std::string& mainKey,
                            UnknownContent unknown, std::string& keptPath);

    [[nodiscard]] AnsiCodePage::Encoded Compose(const std::string& mainKey);
    void AppendGroups(EncodedText& text, const std::string& mainKey, int& progressValue);
    void AppendColors(EncodedText& text, const std::string& mainKey, int progressValue);
    bool AcceptLosses(const SaveLosses& losses);

    ColorLibrary& library_;
    const Settings& settings_;
    Ports ports_;
    KeptFiles keptFiles_;
    LibraryHost* host_ = nullptr;
};
