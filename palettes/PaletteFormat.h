#pragma once

#include "common/ports/AnsiCodePage.h"
#include "palettes/Palette.h"
#include "palettes/PaletteFaults.h"
#include "palettes/PaletteLimits.h"
#include "palettes/PaletteWriting.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Foreign formats; docs/palettes.md describes each as it is read and written.
enum class PaletteFormat {
    Gimp,           // ".gpl"
    SwatchExchange, // ".ase"
    AdobeColor,     // ".aco"
    Table,          // ".csv", ".txt"
};

struct PaletteReading {
    std::optional<PaletteFormat> format; // nothing: it is none of them, and all else is empty
    Palette palette;
    PaletteFaults faults;
};

// By the content alone, whatever the file is called.  codePage: of texts that are not in Unicode.
// mostBytes: what is behind them is left out.
[[nodiscard]] PaletteReading ReadPalette(std::string_view bytes, const AnsiCodePage& codePage,
                                         std::size_t mostBytes = PaletteLimits::kMostBytes);

[[nodiscard]] PaletteWriting WritePalette(const Palette& palette, PaletteFormat format);

// The format that a file's ending asks for, in either letter case; nothing for any other ending.
[[nodiscard]] std::optional<PaletteFormat> FormatOfEnding(const std::string& path);
