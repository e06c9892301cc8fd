#pragma once

#include "common/ports/InfoTexts.h"
#include "convert/LibraryPalette.h"
#include "palettes/PaletteFaults.h"
#include "palettes/PaletteFormat.h"
#include "palettes/PaletteLosses.h"

#include <string>

// What is told of foreign palettes, in the user's language.
class PaletteTexts {
public:
    explicit PaletteTexts(InfoTexts& texts) : texts_(texts) {}

    // "description|pattern" pairs of what can be imported, and of what can be exported.
    [[nodiscard]] std::string ImportFilter() const;
    [[nodiscard]] std::string ExportFilter() const;

    // What could not be read: kind, how often, and where first; empty: nothing.
    [[nodiscard]] std::string Told(const PaletteFaults& faults, PaletteFormat format) const;

    // The question before a file is written that does not hold everything; empty: it does.
    // changedColors: with values beyond their range.
    [[nodiscard]] std::string QuestionAbout(const PaletteLosses& losses,
                                            std::size_t changedColors) const;

    // builtIn: German words, for language files that do not have the text.
    [[nodiscard]] std::string Text(std::int32_t number, const char* builtIn) const {
        return texts_.GetInfoTextOr(number, builtIn);
    }

private:
    InfoTexts& texts_;
};
