#pragma once

#include "common/ports/AnsiCodePage.h"
#include "converter/FileKind.h"
#include "converter/Notes.h"
#include "library/ColorLibrary.h"
#include "library/WorkProgress.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

// What a file holds.
struct ReadColors {
    FileKind kind;
    Notes notes;                           // what could not be read
    std::unique_ptr<ColorLibrary> library; // of a library file
    std::string mainKey;                   // its only library
    Palette palette;                       // the same colors, or those of the palette
    std::size_t changedColors = 0; // whose values are within their ranges in the palette alone
};

// By the content alone, a color library or a palette; nothing: it is neither.
[[nodiscard]] std::optional<ReadColors>
ReadAnyColors(std::string_view bytes, const AnsiCodePage& codePage, WorkProgress& progress);
