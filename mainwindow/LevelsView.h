#pragma once

#include "common/ColorNumber.h"
#include "common/ColorRecord.h"
#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// Level, state, and the nine values in their order.
inline constexpr std::size_t kLevelColumns = 2 + kColorValueCount;
using LevelCells = std::array<std::string, kLevelColumns>;

// A level as the window shows it.
struct LevelRow {
    LevelCells cells;
    std::optional<ColorNumber> color; // of its swatch; none: the level has no color
    bool canBeCleared = false;
};

// frmLevels as its rules see it.  Rows count from 0, the strongest level first.
class LevelsView : public FormWindow, public LocalizableForm {
public:
    [[nodiscard]] std::string Name() const override { return "frmLevels"; }

    virtual void SetWindowCaption(const std::string& caption) = 0;
    virtual void SetColumnCaptions(const LevelCells& captions) = 0;
    virtual void ShowRows(const std::vector<LevelRow>& rows, int selected) = 0; // -1: none
    // What the rows mean, above them.
    virtual void ShowSentence(const std::string& sentence) = 0;
    // Shows the window; when it was hidden, with the focus in the list.
    virtual void ShowModeless() = 0;
};

// What the user did in frmLevels.
class LevelsEvents {
public:
    virtual ~LevelsEvents() = default;

    virtual void TakeClicked(int row) = 0;  // of a level with a color
    virtual void ClearClicked(int row) = 0; // of one that can be cleared
    virtual void ReadClicked() = 0;
    virtual void LevelsClosing() = 0; // the window is hidden afterwards
};
