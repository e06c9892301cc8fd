#include "converter/Notes.h"

#include "common/Text.h"

#include <array>

namespace {

constexpr std::size_t kMostCharactersShown = 40;

// In the order of PaletteFault.
constexpr std::array<const char*, kPaletteFaultCount> kFaults = {
    "not read as a color and left out",
    "colors with a value beyond its range, left out",
    "colors in a color model that is not known, left out",
    "names with bytes that are no characters, U+FFFD stands for them",
    "names longer than the limit, cut",
    "columns or cells that mean nothing here",
    "the file ends in the middle of something",
    "the file says that it has another number of parts",
    "bytes behind the last part",
    "beyond the limits of size, left out",
};

std::string PlaceIn(PaletteFormat format, std::size_t place) {
    const std::string number = std::to_string(place);
    switch (format) {
    case PaletteFormat::Gimp:
    case PaletteFormat::Table:
        return "line " + number;
    case PaletteFormat::SwatchExchange:
        return "block " + number;
    case PaletteFormat::AdobeColor:
        break;
    }
    return "color " + number;
}

} // namespace

void AddNote(Notes& notes, const std::string& what, std::size_t count) {
    if (count > 0)
        notes.push_back(what + ": " + std::to_string(count));
}

Notes NotesOf(const PaletteFaults& faults, PaletteFormat format) {
    Notes notes;
    for (std::size_t fault = 0; fault < kPaletteFaultCount; ++fault) {
        const PaletteFaults::Met& met = faults.Of(static_cast<PaletteFault>(fault));
        AddNote(notes, kFaults.at(fault), met.count);
        if (met.count > 0)
            notes.back() += " (first: " + PlaceIn(format, met.first) + ")";
    }
    return notes;
}

Notes NotesOf(const PaletteLosses& losses) {
    Notes notes;
    AddNote(notes, "name of the palette, not kept or changed", losses.paletteNames);
    AddNote(notes, "groups that are not kept as groups of their own", losses.groups);
    AddNote(notes, "names cut or changed", losses.names);
    AddNote(notes, "colors without their material values", losses.values);
    AddNote(notes, "colors left out", losses.entries);
    return notes;
}

Notes NotesOf(const SaveLosses& losses) {
    Notes notes;
    const std::size_t names = losses.names.size() + (losses.libraryName.empty() ? 0 : 1);
    AddNote(notes, "names with \"=\", a division sign or a line break, changed", names);
    AddNote(notes, "characters that the code page does not have, \"?\" stands for them",
            CharactersOf(losses.characters).size());
    if (!losses.characters.empty())
        notes.back().append(" (").append(CutText(losses.characters, kMostCharactersShown) + ")");
    return notes;
}
