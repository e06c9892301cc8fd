#pragma once

#include "converter/FileKind.h"
#include "library/SaveLosses.h"
#include "palettes/PaletteFaults.h"
#include "palettes/PaletteLosses.h"

#include <string>
#include <vector>

// What was left out or changed, as lines without their ends: what, and how often, "names changed:
// 3".
using Notes = std::vector<std::string>;

// What could not be read; where it was met first is told too.
[[nodiscard]] Notes NotesOf(const PaletteFaults& faults, PaletteFormat format);

// What the written palette does not hold.
[[nodiscard]] Notes NotesOf(const PaletteLosses& losses);

// What the written library does not hold.
[[nodiscard]] Notes NotesOf(const SaveLosses& losses);

// One line; nothing for none.
void AddNote(Notes& notes, const std::string& what, std::size_t count);
