#pragma once

#include "common/Settings.h"
#include "library/ColorLibrary.h"
#include "mainwindow/ColorDrag.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/FindHits.h"
#include "mainwindow/FindView.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/ListPane.h"
#include "mainwindow/MainActivity.h"
#include "mainwindow/PlaceBesideMain.h"
#include "support/language/clsMultiLanguage.h"
#include "support/windows/OnDemand.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

// Finding colors in all open libraries: the window that lists them while one types, and the way
// from a hit to the main window.  What the hits depend on is looked at on each tick of the window:
// the libraries, the active color, the language.
class FindCommands : public FindEvents {
public:
    struct Parts {
        OnDemand<FindView>& window;
        const ColorLibrary& library;
        LibraryPanes& panes;
        const ColorEditor& editor;
        ListPane& list;
        ColorDrag& drag;
        const MainActivity& activity;
        clsMultiLanguage& language;
        const Settings& settings;
        const modRegistry& registry;
        const FormWindow& mainWindow;
        std::chrono::milliseconds slice; // how long the search may hold up the window
    };

    explicit FindCommands(const Parts& parts);

    void mnuEditFind_Click();
    // To the hit after or before the one that was gone to, round at the end; the focus stays where
    // it is.  Without hits the window opens.
    void mnuEditFindNext_Click() { GoOn(+1); }
    void mnuEditFindPrevious_Click() { GoOn(-1); }

    // The place of a window that is still open is kept.
    void ProgramEnding() { windowPlace_.ProgramEnding(); }

    void TextChanged(const std::string& text) override;
    void LikeActiveColorChosen(bool isChosen) override;
    void RowSelected(int row) override;
    void RowChosen(int row) override;
    void Ticked() override;
    void FindClosing() override;
    std::string CellText(int row, int column) const override;
    ColorNumber ColorOfRow(int row) const override;

private:
    [[nodiscard]] std::string Text(std::int32_t number, const char* builtIn) const;

    void Begin();
    void Advance();
    bool NoteRevision();
    bool FollowActiveColor();
    void TakeActiveColor();
    bool FollowLanguage();
    void ShowTexts();
    void ShowAllRows();
    void ShowState();
    [[nodiscard]] std::string StatusText() const;

    void GoOn(int direction);
    [[nodiscard]] int RowFrom(int direction) const;
    bool GoTo(ColorId color);

    [[nodiscard]] std::optional<ColorView> ColorAt(int row) const; // nothing: it has gone

    // Of the language, kept because they are asked for again and again.
    struct Texts {
        std::string found;
        std::string nearest;
        std::string thousands;
        std::string decimal;
    };

    Parts parts_;
    PlaceBesideMain windowPlace_;
    FindHits hits_;
    ColorQuery query_;
    bool likeActiveColor_ = false;
    std::optional<ColorNumber> followed_;  // the active color, as it was seen last
    ColorNumber wanted_ = 0;               // that the nearest are looked for
    std::optional<std::int32_t> language_; // that the texts are of
    Texts texts_;
    std::uint64_t revision_ = 0;    // of the libraries, as it was seen last
    bool isChanging_ = false;       // they were other ones then
    ColorId current_ = 0;           // that the user has selected or gone to; 0: none yet
    int place_ = 0;                 // its row, or where it was
    bool isCurrentMissing_ = false; // it has not been found again yet
    int pace_ = 0;                  // milliseconds between ticks; 0: there are none
    std::string status_;
};
