#include "mainwindow/PaletteTexts.h"

#include "common/InfoTextNumber.h"
#include "common/Text.h"

#include <array>

namespace {

struct NumberedText {
    std::int32_t number;
    const char* builtIn;
};

// In the order of PaletteFault.
constexpr std::array<NumberedText, kPaletteFaultCount> kFaults = {{
    {InfoTextNumber::PaletteUnreadable, "nicht lesbar"},
    {InfoTextNumber::PaletteOutOfRange, "Wert außerhalb seines Bereichs"},
    {InfoTextNumber::PaletteUnknownModel, "unbekanntes Farbmodell"},
    {InfoTextNumber::PaletteNameBroken, "Name mit ungültigen Zeichen"},
    {InfoTextNumber::PaletteNameCut, "Name gekürzt"},
    {InfoTextNumber::PaletteColumn, "Spalte oder Zelle ohne Bedeutung"},
    {InfoTextNumber::PaletteEnds, "die Datei bricht ab"},
    {InfoTextNumber::PaletteCount, "die Datei nennt eine andere Anzahl"},
    {InfoTextNumber::PaletteRest, "Rest hinter dem Ende"},
    {InfoTextNumber::PaletteLimit, "über den Grenzen des Programms"},
}};

} // namespace

std::string PaletteTexts::ImportFilter() const {
    return Text(InfoTextNumber::Palettes, "Paletten") + "|*.gpl;*.ase;*.aco;*.csv;*.txt|" +
           texts_.GetInfoText(InfoTextNumber::AllFiles) + "|*.*";
}

std::string PaletteTexts::ExportFilter() const {
    return Text(InfoTextNumber::GimpPalette, "GIMP-Palette (.gpl)") + "|*.gpl|" +
           Text(InfoTextNumber::SwatchExchange, "Adobe Swatch Exchange (.ase)") + "|*.ase|" +
           Text(InfoTextNumber::AdobeColor, "Adobe-Farbfelder (.aco)") + "|*.aco|" +
           Text(InfoTextNumber::ColorTable, "Tabelle mit allen neun Werten (.csv)") + "|*.csv";
}

std::string PaletteTexts::Told(const PaletteFaults& faults, PaletteFormat format) const {
    const bool isText = format == PaletteFormat::Gimp || format == PaletteFormat::Table;
    const std::string first = isText ? Text(InfoTextNumber::FirstInLine, "zuerst in Zeile")
                                     : Text(InfoTextNumber::FirstAtEntry, "zuerst bei Eintrag");
    std::string told;
    for (std::size_t kind = 0; kind < kPaletteFaultCount; ++kind) {
        const PaletteFaults::Met& met = faults.Of(static_cast<PaletteFault>(kind));
        if (met.count == 0)
            continue;
        told.append(told.empty() ? "" : ", ")
            .append(Text(kFaults[kind].number, kFaults[kind].builtIn))
            .append(": ")
            .append(std::to_string(met.count));
        told.append(" (").append(first).append(" ").append(std::to_string(met.first)).append(")");
    }
    return told;
}

std::string PaletteTexts::QuestionAbout(const PaletteLosses& losses,
                                        std::size_t changedColors) const {
    std::string lines;
    const auto add = [&](std::size_t count, std::int32_t number, const char* builtIn) {
        if (count > 0)
            lines += kLineBreak + Text(number, builtIn) + ": " + std::to_string(count);
    };
    add(losses.entries, InfoTextNumber::LostColors, "Farben, die ganz fehlen");
    add(losses.values, InfoTextNumber::LostMaterials, "Farben ohne ihre sechs Materialwerte");
    add(losses.groups, InfoTextNumber::LostGroups, "Gruppen");
    add(losses.names, InfoTextNumber::LostNames, "Namen, die anders lauten");
    add(losses.paletteNames, InfoTextNumber::LostPaletteName, "Name der Palette");
    add(changedColors, InfoTextNumber::ChangedColors, "Farben mit Werten außerhalb ihres Bereichs");
    if (lines.empty())
        return {};
    return Text(InfoTextNumber::NotHeldByFormat, "Dieses Format hält nicht alles:") + lines +
           kLineBreak + Text(InfoTextNumber::AskExportAllTheSame, "Trotzdem exportieren?");
}
