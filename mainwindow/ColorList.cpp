#include "mainwindow/ColorList.h"

#include "common/Numbers.h"
#include "mainwindow/ValueColumns.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kNameColumn = 1;
constexpr int kColumnCount = 1 + static_cast<int>(kColorValueCount);

float WholeWidth(double width) {
    return static_cast<float>(RoundHalfToEven(width));
}

constexpr bool IsPlain(char character) noexcept {
    return static_cast<unsigned char>(character) < 0x80;
}

constexpr bool IsSamePlainLetter(char letter, char lowerCase) noexcept {
    return letter == lowerCase ||
           (letter >= 'A' && letter <= 'Z' && letter - 'A' + 'a' == lowerCase);
}

} // namespace

void ColorList::AddColumns() {
    const double width = pane_.ListWidth();
    const float valueWidth = WholeWidth(width * 0.75 / 9);
    std::vector<ListColumn> columns{{"Name", "Name", WholeWidth(width * 0.24)}};
    for (const ValueColumn& column : kValueColumns)
        columns.push_back({column.caption, column.key, valueWidth});
    pane_.AddColumns(columns);
}

void ColorList::Fill(const std::string& groupKey) {
    rows_ = library_.Colors().IdsOfGroup(groupKey);
    keysOfGone_.clear();
    selected_.reset();
    if (sorted_)
        Sort();
    pane_.RowsChanged(RowCount());
}

void ColorList::Clear() {
    rows_.clear();
    keysOfGone_.clear();
    selected_.reset();
    pane_.RowsChanged(0);
}

std::string ColorList::KeyOfRow(int row) const {
    if (row < 0 || row >= RowCount())
        return {};
    const ColorId color = rows_[static_cast<std::size_t>(row)];
    const auto gone = keysOfGone_.find(color);
    if (gone != keysOfGone_.end())
        return gone->second;
    return library_.Colors().At(library_.Colors().IndexOfId(color)).key;
}

std::optional<int> ColorList::RowOfKey(const std::string& key) const {
    const int index = library_.GetColornodeIndex(key);
    return index > 0 ? RowOfColor(library_.Colors().IdAt(index)) : std::nullopt;
}

std::optional<int> ColorList::RowOfColor(ColorId color) const {
    const auto found = std::ranges::find(rows_, color);
    if (found == rows_.end())
        return {};
    return static_cast<int>(found - rows_.begin());
}

void ColorList::Select(int row) {
    selected_ = row;
    pane_.SelectRow(row);
}

std::string ColorList::SelectedKey() const {
    return selected_ ? KeyOfRow(*selected_) : std::string();
}

ColorId ColorList::SelectedColor() const {
    return selected_ ? rows_[static_cast<std::size_t>(*selected_)] : 0;
}

bool ColorList::SelectColor(ColorId color) {
    const std::optional<int> row = RowOfColor(color);
    if (row)
        Select(*row);
    return row.has_value();
}

void ColorList::ShowSelected() {
    if (selected_)
        pane_.EnsureRowVisible(*selected_);
}

void ColorList::EditSelected() {
    if (selected_)
        pane_.EditRowLabel(*selected_);
}

void ColorList::ColorLeaves(int index) {
    keysOfGone_[library_.Colors().IdAt(index)] = library_.Colors().At(index).key;
}

void ColorList::RemoveSelected() {
    if (!selected_)
        return;
    const int row = *selected_;
    rows_.erase(rows_.begin() + row);
    selected_.reset();
    pane_.RowsChanged(RowCount());
    if (RowCount() > 0)
        Select(std::min(row, RowCount() - 1));
    ShowSelected();
}

void ColorList::SortByColumn(int column) {
    descending_ = sortKey_ == column - 1 && !descending_;
    sortKey_ = column - 1;
    sorted_ = true;
    pane_.ShowSortOrder(column, descending_);
    const ColorId selectedColor = SelectedColor();
    Sort();
    selected_.reset();
    pane_.RowsChanged(RowCount());
    if (const auto row = RowOfColor(selectedColor)) {
        Select(*row);
        ShowSelected();
    }
}

// As text, the numbers too, on purpose: "100" comes before "20".
void ColorList::Sort() {
    std::vector<std::pair<std::string, ColorId>> rows; // sort key of the cell, color
    rows.reserve(rows_.size());
    for (const ColorId color : rows_)
        rows.emplace_back(collation_.SortKey(TextOfColor(color, sortKey_ + 1)), color);
    std::ranges::sort(rows, [this](const auto& left, const auto& right) {
        const int order = left.first.compare(right.first);
        if (order == 0)
            return left.second < right.second; // as in the library, in both directions
        return descending_ ? order > 0 : order < 0;
    });
    std::ranges::transform(rows, rows_.begin(), [](const auto& row) { return row.second; });
}

std::string ColorList::CellText(int row, int column) const {
    if (row < 0 || row >= RowCount())
        return {};
    return TextOfColor(rows_[static_cast<std::size_t>(row)], column);
}

std::string ColorList::TextOfColor(ColorId color, int column) const {
    const ColorTable& colors = library_.Colors();
    const int index = colors.IndexOfId(color);
    if (index == 0 || column < kNameColumn || column > kColumnCount)
        return {};
    const StoredColor& stored = colors.ViewAt(index).color;
    if (column == kNameColumn)
        return stored.name;
    return std::to_string(stored.values[static_cast<std::size_t>(column - kNameColumn - 1)]);
}

std::optional<ColorValueArray> ColorList::RowValues(int row) const {
    if (row < 0 || row >= RowCount())
        return {};
    const ColorTable& colors = library_.Colors();
    const int index = colors.IndexOfId(rows_[static_cast<std::size_t>(row)]);
    if (index == 0)
        return {};
    return colors.ViewAt(index).color.values;
}

int ColorList::FindRow(const std::string& text, int start) const {
    const std::string wanted = collation_.LowerCase(text);
    for (int step = 0; step < RowCount(); ++step) {
        const int row = (std::max(start, 0) + step) % RowCount();
        if (NameBeginsWith(rows_[static_cast<std::size_t>(row)], wanted))
            return row;
    }
    return -1;
}

// Most names differ in a plain letter, so that few need the platform's own lower case.
bool ColorList::NameBeginsWith(ColorId color, const std::string& lowerCase) const {
    const ColorTable& colors = library_.Colors();
    const int index = colors.IndexOfId(color);
    if (index == 0)
        return false;
    const std::string& name = colors.ViewAt(index).color.name;
    const auto [inName, inWanted] = std::ranges::mismatch(name, lowerCase, IsSamePlainLetter);
    if (inWanted == lowerCase.end())
        return true;
    if (inName == name.end() || (IsPlain(*inName) && IsPlain(*inWanted)))
        return false;
    return collation_.LowerCase(name).starts_with(lowerCase);
}
