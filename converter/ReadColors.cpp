#include "converter/ReadColors.h"

#include "common/RuntimeError.h"
#include "convert/LibraryPalette.h"
#include "library/LibraryReader.h"

#include <utility>

namespace {

std::string EndsAt(const LibraryReader& reader) {
    return "it and what follows is left out, line " + std::to_string(reader.LineNumber());
}

Notes ReadAll(LibraryReader& reader, WorkProgress& progress) {
    try {
        if (!reader.Read(progress))
            return {"a line that is no record of a library; " + EndsAt(reader)};
    } catch (const RuntimeError& error) {
        return {error.Description() + "; " + EndsAt(reader)};
    }
    if (!reader.IsHeldWhole())
        return {"lines of which a part means nothing here or is spelled in another way"};
    return {};
}

std::optional<ReadColors> ReadLibrary(std::string_view bytes, const AnsiCodePage& codePage,
                                      WorkProgress& progress) {
    ReadColors colors;
    colors.library = std::make_unique<ColorLibrary>();
    LibraryReader reader(*colors.library, codePage, bytes, "");
    colors.notes = ReadAll(reader, progress);
    colors.mainKey = reader.MainKey();
    if (colors.mainKey.empty())
        return {};
    LibraryAsPalette made = PaletteOfLibrary(*colors.library, colors.mainKey);
    colors.palette = std::move(made.palette);
    colors.changedColors = made.changedColors;
    return colors;
}

} // namespace

std::optional<ReadColors> ReadAnyColors(std::string_view bytes, const AnsiCodePage& codePage,
                                        WorkProgress& progress) {
    if (std::optional<ReadColors> library = ReadLibrary(bytes, codePage, progress))
        return library;
    PaletteReading reading = ReadPalette(bytes, codePage);
    if (!reading.format)
        return {};
    ReadColors colors;
    colors.kind.palette = reading.format;
    colors.notes = NotesOf(reading.faults, *reading.format);
    colors.palette = std::move(reading.palette);
    return colors;
}
