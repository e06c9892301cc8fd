#pragma once

#include "palettes/Palette.h"
#include "palettes/PaletteContent.h"
#include "palettes/PaletteWriting.h"

#include <string_view>

// Palettes of GIMP, in the old format and in the new one, with a header.  Source: GIMP Palette
// Format Version 2, developer.gimp.org/core/standards/gpl.
namespace GimpPaletteFile {

// text: UTF-8, as in Read.
[[nodiscard]] bool IsOne(std::string_view text) noexcept;

[[nodiscard]] PaletteContent Read(std::string_view text);

// In the new format.
[[nodiscard]] PaletteWriting Write(const Palette& palette);

} // namespace GimpPaletteFile
