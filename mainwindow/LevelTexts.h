#pragma once

#include "common/ports/InfoTexts.h"
#include "mainwindow/LevelsView.h"
#include "solidworks/LevelColors.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// What the levels of SolidWorks's selection are called, and which color is seen, in words.
class LevelTexts {
public:
    explicit LevelTexts(InfoTexts& texts) : texts_(texts) {}

    [[nodiscard]] std::string WindowCaption() const;
    [[nodiscard]] LevelCells ColumnCaptions() const;
    // index: of one of the levels.
    [[nodiscard]] LevelCells CellsOf(const LevelColors& colors, std::size_t index) const;
    // Which color covers which, and what could not be looked at.
    [[nodiscard]] std::string SentenceOf(const LevelColors& colors) const;

private:
    struct Wording {
        std::int32_t number;
        const char* builtIn; // German, as all built-in texts of windows
    };
    struct Names {
        Wording inRow;
        Wording inSentence;
    };

    [[nodiscard]] static const Names& NamesOf(LevelKind kind);
    [[nodiscard]] std::string Text(const Wording& wording) const;
    [[nodiscard]] std::string StateOf(const LevelColors& colors, std::size_t index) const;
    [[nodiscard]] std::string WhichIsSeen(const LevelColors& colors) const;
    [[nodiscard]] std::string ListOf(const std::vector<LevelKind>& kinds) const;

    InfoTexts& texts_;
};
