#pragma once

#include "tests/e2e/RemoteWindow.h"

#include <vector>

// A list control of another process in its detail view.  Rows and columns count from 0.
class RemoteList {
public:
    using Row = std::vector<std::string>;

    explicit RemoteList(RemoteWindow window) : window_(window) {}

    [[nodiscard]] int RowCount() const;
    [[nodiscard]] int ColumnCount() const;
    [[nodiscard]] Row ReadRow(int row) const;
    [[nodiscard]] std::vector<Row> ReadRows() const;
    [[nodiscard]] std::vector<std::string> SelectedNames() const; // column 0

    // The row with the text in column 0, as soon as there is one; throws std::runtime_error when
    // none comes.
    [[nodiscard]] int FindRow(const std::string& name) const;
    void ClickRow(const std::string& name) const; // with the mouse, on the text of column 0
    void ClickColumn(int column) const;           // its header

    [[nodiscard]] int TopRow() const;             // the first that is seen
    [[nodiscard]] DWORD ViewStyle() const;        // LVS_ICON, LVS_SMALLICON, LVS_LIST or LVS_REPORT
    [[nodiscard]] RemoteWindow LabelEdit() const; // without a handle while no label is edited
    [[nodiscard]] POINT Centre() const { return window_.Centre(); }
    // Of the screen, on the text of column 0; the row is scrolled into view.
    [[nodiscard]] POINT PointOfRow(const std::string& name) const;
    // What the screen shows in the middle of the picture of the row.
    [[nodiscard]] COLORREF PictureColor(const std::string& name) const;
    [[nodiscard]] std::vector<std::string> Names() const; // column 0 of every row

private:
    [[nodiscard]] RECT BoundsOfRow(const std::string& name, LONG part) const; // LVIR_...
    [[nodiscard]] std::string Cell(int row, int column) const;
    [[nodiscard]] HWND Header() const;

    RemoteWindow window_;
};
