#pragma once

#include "common/ColorNumber.h"
#include "common/ports/FormWindow.h"
#include "common/ports/LocalizableForm.h"

#include <array>
#include <string>

// Captions of the columns: name, group, library, difference.
using FindCaptions = std::array<std::string, 4>;

// frmFind as its rules see it.  Rows count from 0.
class FindView : public FormWindow, public LocalizableForm {
public:
    [[nodiscard]] std::string Name() const override { return "frmFind"; }

    virtual void SetWindowCaption(const std::string& caption) = 0;
    virtual void SetColumnCaptions(const FindCaptions& captions) = 0;
    virtual void ShowDifferences(bool shown) = 0; // their column
    virtual void ShowActiveColor(ColorNumber color) = 0;
    // All rows may be different now; selected: that which is selected and in sight, -1: none.
    virtual void ShowRows(int count, int selected) = 0;
    // More rows than before; those that were there are the same.
    virtual void AddRows(int count) = 0;
    virtual void SelectRow(int row) = 0; // it comes into sight
    virtual void SetStatus(const std::string& text) = 0;
    // Ticked is reported so often from now on, when nothing else is to be done; 0: never.
    virtual void TickEvery(int milliseconds) = 0;
    // Shows the window with the focus in the text box and its text selected.
    virtual void ShowModeless() = 0;
};

// What the user did in frmFind, and what its list shows.
class FindEvents {
public:
    virtual ~FindEvents() = default;

    virtual void TextChanged(const std::string& text) = 0;
    virtual void LikeActiveColorChosen(bool isChosen) = 0;
    virtual void RowSelected(int row) = 0;
    virtual void RowChosen(int row) = 0; // Enter, double click
    virtual void Ticked() = 0;
    virtual void FindClosing() = 0; // the window is hidden afterwards

    [[nodiscard]] virtual std::string CellText(int row, int column) const = 0; // column: from 1
    [[nodiscard]] virtual ColorNumber ColorOfRow(int row) const = 0;
};
