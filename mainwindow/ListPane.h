#pragma once

#include "common/ColorRecord.h"

#include <optional>
#include <string>
#include <vector>

// lvColor: an owner-data list; its texts are asked through ListRows.  Rows count from 0, columns
// from 1; texts are UTF-8, lengths are twips.
enum class ListViewMode { LargeIcons = 0, SmallIcons = 1, List = 2, Details = 3 };

struct ListColumn {
    std::string caption;
    std::string key;
    float width = 0;
};

// A line of what the list says while it has no rows: a text, or a link that runs a command or opens
// a library's file.
struct HintLine {
    std::string text;
    int command = 0; // IDM_ number
    std::string file{};

    [[nodiscard]] bool IsLink() const noexcept { return command != 0 || !file.empty(); }
};

class ListPane {
public:
    virtual ~ListPane() = default;
    [[nodiscard]] virtual float ListWidth() const = 0;
    virtual void AddColumns(const std::vector<ListColumn>& columns) = 0;
    // The column that the rows are sorted by is marked in the header, and no other one.
    virtual void ShowSortOrder(int column, bool descending) = 0;
    // All rows may be different now, also in number; nothing is selected afterwards.
    virtual void RowsChanged(int rowCount) = 0;
    virtual void SelectRow(int row) = 0;
    virtual void EnsureRowVisible(int row) = 0;
    virtual void FocusRows() = 0; // the list has the focus, and its window is the active one
    // The first row that is in sight, and the same by program as far as there are rows below it.
    [[nodiscard]] virtual int FirstRowInSight() const = 0;
    virtual void ShowFromRow(int row) = 0;
    virtual void EditRowLabel(int row) = 0;
    // An open edit of a label ends and reports its text.
    virtual void FinishLabelEdit() = 0;
    virtual void SetListViewMode(ListViewMode mode) = 0;
    // Each row's picture is painted from its color (ListRows::RowValues), or is common to all.
    virtual void ShowRowColors(bool shown) = 0;
    // What it says without rows (ListHints) may be something else now.
    virtual void HintChanged() = 0;
};

// What the list shows, in which order.
class ListRows {
public:
    virtual ~ListRows() = default;

    [[nodiscard]] virtual std::string CellText(int row, int column) const = 0;
    [[nodiscard]] virtual std::optional<ColorValueArray> RowValues(int row) const = 0; // none: gone
    // First row from start (wrapping at the end) whose name begins with the text, letter case
    // ignored; -1: none.
    [[nodiscard]] virtual int FindRow(const std::string& text, int start) const = 0;
};

// What the list says while it has no rows; asked whenever they have changed.
class ListHints {
public:
    virtual ~ListHints() = default;

    [[nodiscard]] virtual std::vector<HintLine> HintLines() const = 0; // the first is the title
};

// What the user did in the list.
class ListEvents {
public:
    virtual ~ListEvents() = default;

    virtual void RowClicked(int row) = 0; // selected by mouse or keyboard
    virtual void RowEditRequested() = 0;  // F2
    [[nodiscard]] virtual bool MayEditRow() const = 0;
    virtual void RowLabelEdited(int row, const std::string& text) = 0;
    virtual void ColumnClicked(int column) = 0;
};
