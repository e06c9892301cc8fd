#pragma once

#include "common/Settings.h"
#include "common/ports/AnsiCodePage.h"
#include "common/ports/Files.h"
#include "common/ports/InfoTexts.h"
#include "common/ports/ProgressView.h"
#include "common/ports/Prompts.h"
#include "library/ColorLibrary.h"
#include "library/DecodedLines.h"
#include "library/EncodedText.h"
#include "library/LibraryHost.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

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
    };

    LibraryFiles(ColorLibrary& library, const Settings& settings, const Ports& ports)
        : library_(library), settings_(settings), ports_(ports) {}

    // Must be called before any other operation.
    void SetHost(LibraryHost& host) noexcept { host_ = &host; }

    // False without a message when the file does not exist, with the invalid-file message when it
    // is no library file; what was added until then stays.  Throws RuntimeError for a file that
    // cannot be read and for a value that is no 16-bit number.
    bool FileReadColorValues(const std::string& fileName);

    // False when nothing was written: no groups (with a message), the user cancelled, or the
    // platform reported a failure.  The old content is never lost.
    bool FileWriteColorValues(const std::string& fileName, const std::string& mainKey);

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

    bool ReadContent(std::string_view bytes, const std::string& fileName);
    bool ReadRecords(DecodedLines& lines, const std::string& mainKey);
    bool ReadGroup(std::string_view record, const std::string& mainKey, SavedGroups& groups);
    bool ReadColor(std::string_view record, std::string_view separator, const SavedGroups& groups,
                   std::uint32_t number);
    bool RefuseInvalidFile(const std::string& fileName);
    bool RefuseWithoutGroups(const std::string& fileName);

    [[nodiscard]] AnsiCodePage::Encoded Compose(const std::string& mainKey);
    void AppendGroups(EncodedText& text, const std::string& mainKey, int& progressValue);
    void AppendColors(EncodedText& text, const std::string& mainKey, int progressValue);
    bool AcceptUnstored(const std::string& unstored);

    ColorLibrary& library_;
    const Settings& settings_;
    Ports ports_;
    LibraryHost* host_ = nullptr;
};
