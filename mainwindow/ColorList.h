#pragma once

#include "common/ports/TextCollation.h"
#include "library/ColorLibrary.h"
#include "mainwindow/ListPane.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// The rows of lvColor: one for each color of the current group, with the selected one, sorted by a
// column once the user asked for it.  Rows count from 0, columns from 1.
class ColorList : public ListRows {
public:
    ColorList(const ColorLibrary& library, ListPane& pane, const TextCollation& collation)
        : library_(library), pane_(pane), collation_(collation) {}

    // Name and nine values, with widths that are shares of the list's width at this moment.
    void AddColumns();

    // Fills the list with a group's colors; nothing is selected afterwards.
    void Fill(const std::string& groupKey);
    void Clear();

    [[nodiscard]] int RowCount() const noexcept { return static_cast<int>(rows_.size()); }
    [[nodiscard]] std::string KeyOfRow(int row) const; // empty when there is no such row
    [[nodiscard]] std::optional<int> RowOfKey(const std::string& key) const;
    [[nodiscard]] const std::vector<ColorId>& Rows() const noexcept { return rows_; }

    // Selects a row by program; the view follows.
    void Select(int row);
    // Selects the row that the view has selected already.
    void SelectedByUser(int row) noexcept { selected_ = row; }
    [[nodiscard]] std::optional<int> SelectedRow() const noexcept { return selected_; }
    [[nodiscard]] std::string SelectedKey() const; // empty: none
    void ShowSelected();
    [[nodiscard]] ColorId SelectedColor() const; // 0: none
    bool SelectColor(ColorId color);             // false: it is not in the list
    [[nodiscard]] int FirstRowInSight() const { return pane_.FirstRowInSight(); }
    void ShowFromRow(int row) { pane_.ShowFromRow(row); }
    void EditSelected(); // its label; nothing without one
    void FinishEdit() { pane_.FinishLabelEdit(); }

    // A color is about to leave the library: a row that it has keeps its key, and shows nothing.
    void ColorLeaves(int index);

    // Takes the selected row out; the row after it (else the last one) is selected then.
    void RemoveSelected();

    // Sorts by the column as text; the column that sorts already flips the order.
    void SortByColumn(int column);

    [[nodiscard]] std::string CellText(int row, int column) const override;

    [[nodiscard]] std::optional<ColorValueArray> RowValues(int row) const override;

    [[nodiscard]] int FindRow(const std::string& text, int start) const override;

private:
    void Sort();
    [[nodiscard]] std::optional<int> RowOfColor(ColorId color) const;
    [[nodiscard]] std::string TextOfColor(ColorId color, int column) const;
    [[nodiscard]] bool NameBeginsWith(ColorId color, const std::string& lowerCase) const;

    const ColorLibrary& library_;
    ListPane& pane_;
    const TextCollation& collation_;
    std::vector<ColorId> rows_; // taken over from the table as a whole, whatever a group's size
    std::map<ColorId, std::string> keysOfGone_; // of rows without a color
    std::optional<int> selected_;
    bool sorted_ = false;
    int sortKey_ = 0; // column - 1
    bool descending_ = false;
};
