#pragma once

#include "common/ports/AnsiCodePage.h"
#include "library/ColorLibrary.h"
#include "library/DecodedLines.h"
#include "library/SavedGroups.h"
#include "library/WorkProgress.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

// Reads the content of one library file into a new main node, which is selected and has that file.
class LibraryReader {
public:
    // bytes: must live as long as this.
    LibraryReader(ColorLibrary& library, const AnsiCodePage& codePage, std::string_view bytes,
                  std::string fileName)
        : library_(library), codePage_(codePage), lines_(bytes, codePage),
          fileName_(std::move(fileName)) {}

    // False: it is no library file, or only its beginning is one; what was added until then stays.
    // Throws RuntimeError for a value that is no 16-bit number.
    [[nodiscard]] bool Read(WorkProgress& progress);

    // Empty when not even the header could be read.
    [[nodiscard]] const std::string& MainKey() const noexcept { return mainKey_; }

    // Whether the library has everything in it that stood in the lines that were read.
    [[nodiscard]] bool IsHeldWhole() const noexcept { return isHeldWhole_; }

    // Of the last line that was read, from 1.
    [[nodiscard]] auto LineNumber() const noexcept { return lines_.Number(); }

private:
    bool ReadHeader(WorkProgress& progress);
    bool ReadRecord(std::string_view line, std::string_view separator);
    bool ReadGroup(std::string_view line);
    bool ReadColor(std::string_view line, std::string_view separator);
    void NoteWhetherHeld(bool isWhole) noexcept { isHeldWhole_ = isHeldWhole_ && isWhole; }

    ColorLibrary& library_;
    const AnsiCodePage& codePage_;
    DecodedLines lines_;
    std::string fileName_;
    std::string mainKey_;
    bool isHeldWhole_ = true;
    SavedGroups groups_;
    // One counter for the whole file, on purpose: color keys are unique without a look-up.
    std::uint32_t colorNumber_ = 0;
};
