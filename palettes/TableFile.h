#pragma once

#include "palettes/Palette.h"
#include "palettes/PaletteContent.h"
#include "palettes/PaletteWriting.h"

#include <optional>
#include <string_view>

// Tables of colors as texts: a record a line, cells between commas, semicolons or tabs.
namespace TableFile {

// text: UTF-8.  Nothing when it is no table of colors: it has neither a header nor a color.
[[nodiscard]] std::optional<PaletteContent> Read(std::string_view text);

// With all nine values, in UTF-8 with a mark and with a header.
[[nodiscard]] PaletteWriting Write(const Palette& palette);

} // namespace TableFile
