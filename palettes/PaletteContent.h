#pragma once

#include "palettes/Palette.h"
#include "palettes/PaletteFaults.h"

#include <string>
#include <string_view>

// What a reader has taken from a file so far.  Nothing gets past the limits, nothing is left out
// without being counted.
class PaletteContent {
public:
    // So many colors may come: makes room for them, within the limit.  count: seen in the file's
    // bytes, not said by them.
    void Expect(std::size_t count);

    // place: where it stands, as the faults tell it.  Gives kNoGroup when there are too many.
    PaletteGroup AddGroup(std::string&& name, std::size_t place);
    // A new color, to be filled; null when there are too many.  It is kept or dropped before the
    // next one is started.
    [[nodiscard]] PaletteEntry* StartEntry(std::size_t place);
    void KeepEntry(std::size_t place) { CheckName(palette.entries.back().name, place); }
    void DropEntry() noexcept { palette.entries.pop_back(); }

    void Add(PaletteFault fault, std::size_t place) noexcept { faults.Add(fault, place); }

    Palette palette;
    PaletteFaults faults;

    void CheckName(std::string& name, std::size_t place);
};

// A name's part up to the limit, never cut inside a character.
[[nodiscard]] std::string_view NameWithinLimit(std::string_view name) noexcept;
