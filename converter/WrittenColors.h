#pragma once

#include "convert/LibraryPalette.h"
#include "converter/ReadColors.h"

#include <string>

// What a file is to be written with.
struct WritingWishes {
    std::string name;     // of the library or palette
    ColorMaterial values; // of colors that have none
};

// A file as it will be.
struct WrittenColors {
    std::string bytes;
    Notes notes; // what it does not hold
};

// Of the formats a table alone has a place for the values.  colors: taken apart.
[[nodiscard]] WrittenColors WriteAsPalette(ReadColors& colors, PaletteFormat format,
                                           const WritingWishes& wishes);

// A library that was read keeps everything but its name.  Names that would not be read back are
// changed.
[[nodiscard]] WrittenColors WriteAsLibrary(ReadColors& colors, const AnsiCodePage& codePage,
                                           const WritingWishes& wishes, WorkProgress& progress);
