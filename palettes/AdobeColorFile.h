#pragma once

#include "palettes/Palette.h"
#include "palettes/PaletteContent.h"
#include "palettes/PaletteWriting.h"

#include <string_view>

// Color swatches of Photoshop, versions 1 and 2.  Source: Adobe Photoshop File Formats
// Specification, Additional File Formats, Color Swatches.
namespace AdobeColorFile {

[[nodiscard]] bool IsOne(std::string_view bytes) noexcept;

// Places of faults are numbers of colors.
[[nodiscard]] PaletteContent Read(std::string_view bytes);

// A section of version 1 and one of version 2, with the names.
[[nodiscard]] PaletteWriting Write(const Palette& palette);

} // namespace AdobeColorFile
