#include "palettes/PaletteFormat.h"

#include "common/FileNames.h"
#include "palettes/AdobeColorFile.h"
#include "palettes/GimpPaletteFile.h"
#include "palettes/PaletteText.h"
#include "palettes/SwatchExchangeFile.h"
#include "palettes/TableFile.h"

#include <utility>

namespace {

PaletteReading ReadingOf(PaletteFormat format, PaletteContent content) {
    return {format, std::move(content.palette), content.faults};
}

PaletteReading ReadText(const PaletteText& text) {
    if (GimpPaletteFile::IsOne(text.View()))
        return ReadingOf(PaletteFormat::Gimp, GimpPaletteFile::Read(text.View()));
    std::optional<PaletteContent> table = TableFile::Read(text.View());
    return table ? ReadingOf(PaletteFormat::Table, *std::move(table)) : PaletteReading();
}

PaletteReading ReadAny(std::string_view bytes, const AnsiCodePage& codePage) {
    if (SwatchExchangeFile::IsOne(bytes))
        return ReadingOf(PaletteFormat::SwatchExchange, SwatchExchangeFile::Read(bytes));
    if (AdobeColorFile::IsOne(bytes))
        return ReadingOf(PaletteFormat::AdobeColor, AdobeColorFile::Read(bytes));
    return PaletteText::IsOne(bytes) ? ReadText(PaletteText(bytes, codePage)) : PaletteReading();
}

} // namespace

PaletteReading ReadPalette(std::string_view bytes, const AnsiCodePage& codePage,
                           std::size_t mostBytes) {
    PaletteReading reading = ReadAny(bytes.substr(0, mostBytes), codePage);
    if (reading.format && bytes.size() > mostBytes)
        reading.faults.Add(PaletteFault::Limit, reading.palette.entries.size() + 1);
    return reading;
}

PaletteWriting WritePalette(const Palette& palette, PaletteFormat format) {
    switch (format) {
    case PaletteFormat::Gimp:
        return GimpPaletteFile::Write(palette);
    case PaletteFormat::SwatchExchange:
        return SwatchExchangeFile::Write(palette);
    case PaletteFormat::AdobeColor:
        return AdobeColorFile::Write(palette);
    case PaletteFormat::Table:
        break;
    }
    return TableFile::Write(palette);
}

std::optional<PaletteFormat> FormatOfEnding(const std::string& path) {
    if (HasExtension(path, ".gpl"))
        return PaletteFormat::Gimp;
    if (HasExtension(path, ".ase"))
        return PaletteFormat::SwatchExchange;
    if (HasExtension(path, ".aco"))
        return PaletteFormat::AdobeColor;
    if (HasExtension(path, ".csv") || HasExtension(path, ".txt"))
        return PaletteFormat::Table;
    return {};
}
