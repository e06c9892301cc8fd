#pragma once

#include "palettes/Palette.h"
#include "palettes/PaletteContent.h"
#include "palettes/PaletteWriting.h"

#include <string_view>

// Adobe Swatch Exchange.  Its maker has not published it; sources: the descriptions of C. Camera
// (ASE File Specification) and J. Greely (dotclue.org, Adobe Swatch Exchange file format).
namespace SwatchExchangeFile {

[[nodiscard]] bool IsOne(std::string_view bytes) noexcept;

// Places of faults are numbers of blocks.
[[nodiscard]] PaletteContent Read(std::string_view bytes);

// Colors without a group come first, then the groups, each with its colors in their order.
[[nodiscard]] PaletteWriting Write(const Palette& palette);

} // namespace SwatchExchangeFile
