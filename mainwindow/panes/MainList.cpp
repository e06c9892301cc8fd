#include "mainwindow/panes/MainList.h"

#include "platform/WindowGeometry.h"

void MainList::Attach(ListRows& rows, ListEvents& events, const ListHints& hints) {
    rows_ = &rows;
    hints_ = &hints;
    control_.cellText = [&rows](int row, int column) { return rows.CellText(row, column); };
    control_.findRow = [&rows](const std::string& text, int start) {
        return rows.FindRow(text, start);
    };
    control_.onColumnClick = [&events](int column) { events.ColumnClicked(column); };
    control_.onClick = [&events](int row) { events.RowClicked(row); };
    control_.onEditRequested = [&events] { events.RowEditRequested(); };
    control_.mayEdit = [&events] { return events.MayEditRow(); };
    control_.onLabelEdited = [&events](int row, const std::string& text) {
        events.RowLabelEdited(row, text);
    };
    control_.onHintLink = [this](int line) {
        const HintLine chosen = hintLines_.at(static_cast<std::size_t>(line)); // others come
        Raise(onHintLink, chosen);
    };
}

float MainList::ListWidth() const {
    return scale_.ToTwips(WidthOf(control_.Bounds()));
}

void MainList::AddColumns(const std::vector<ListColumn>& columns) {
    std::vector<ListView::Column> added;
    added.reserve(columns.size());
    for (const ListColumn& column : columns)
        added.push_back({column.caption, scale_.ToPixels(column.width)});
    control_.AddColumns(added);
}

void MainList::ShowSortOrder(int column, bool descending) {
    control_.MarkColumn(column, descending);
}

void MainList::RowsChanged(int rowCount) {
    control_.SetRowCount(rowCount);
    rowCount_ = rowCount;
    HintChanged();
}

void MainList::HintChanged() {
    hintLines_ =
        rowCount_ == 0 && hints_ != nullptr ? hints_->HintLines() : std::vector<HintLine>();
    std::vector<ListHint::Line> lines;
    for (const HintLine& line : hintLines_)
        lines.push_back({line.text, line.IsLink()});
    control_.ShowHint(lines);
}

void MainList::SelectRow(int row) {
    control_.SelectRow(row);
}

void MainList::EnsureRowVisible(int row) {
    control_.EnsureVisible(row);
}

void MainList::FocusRows() {
    control_.Focus();
}

int MainList::FirstRowInSight() const {
    return control_.FirstRowInSight();
}

void MainList::ShowFromRow(int row) {
    control_.ShowFromRow(row);
}

void MainList::EditRowLabel(int row) {
    control_.EditLabel(row);
}

void MainList::FinishLabelEdit() {
    control_.FinishEdit();
}

void MainList::SetListViewMode(ListViewMode mode) {
    control_.SetMode(static_cast<int>(mode));
}

void MainList::ShowRowColors(bool shown) {
    if (!shown) {
        control_.PaintPictures({});
        return;
    }
    control_.PaintPictures([this](const ListView::PicturePlace& place) {
        if (const auto values = rows_ != nullptr ? rows_->RowValues(place.row) : std::nullopt)
            pictures_.Paint(place.device, place.square, *values, place.isLarge);
    });
}
