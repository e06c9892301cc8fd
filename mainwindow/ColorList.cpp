#include "mainwindow/ColorList.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kNameColumn = 1;
constexpr int kColumnCount = 1 + static_cast<int>(kColorValueCount);

float WholeWidth(double width) {
    return static_cast<float>(RoundHalfToEven(width));
}

} // namespace

void ColorList::AddColumns() {
    const double width = pane_.ListWidth();
    const float valueWidth = WholeWidth(width * 0.75 / 9);
    pane_.AddColumns({{"Name", "Name", WholeWidth(width * 0.24)},
                      {"R", "red", valueWidth},
                      {"G", "green", valueWidth},
                      {"B", "blue", valueWidth},
                      {"Amb", "Ambient", valueWidth},
                      {"Dif", "Diffuse", valueWidth},
                      {"Spe", "Specular", valueWidth},
                      {"Shi", "Shininess", valueWidth},
                      {"Tra", "Transparency", valueWidth},
                      {"Emi", "Emission", valueWidth}});
}

void ColorList::Fill(const std::string& groupKey) {
    const std::vector<int> indexes = library_.GetColorIndexInGroup(groupKey);
    keys_.clear();
    keys_.reserve(indexes.size());
    for (const int index : indexes)
        keys_.push_back(library_.Colors().At(index).key);
    selected_.reset();
    if (sorted_)
        Sort();
    pane_.RowsChanged(RowCount());
}

void ColorList::Clear() {
    keys_.clear();
    selected_.reset();
    pane_.RowsChanged(0);
}

std::string ColorList::KeyOfRow(int row) const {
    return row >= 0 && row < RowCount() ? keys_[static_cast<std::size_t>(row)] : std::string();
}

std::optional<int> ColorList::RowOfKey(const std::string& key) const {
    const auto found = std::ranges::find(keys_, key);
    if (found == keys_.end())
        return {};
    return static_cast<int>(found - keys_.begin());
}

void ColorList::Select(int row) {
    selected_ = row;
    pane_.SelectRow(row);
}

std::string ColorList::SelectedKey() const {
    return selected_ ? KeyOfRow(*selected_) : std::string();
}

void ColorList::ShowSelected() {
    if (selected_)
        pane_.EnsureRowVisible(*selected_);
}

void ColorList::RemoveSelected() {
    if (!selected_)
        return;
    const int row = *selected_;
    keys_.erase(keys_.begin() + row);
    selected_.reset();
    pane_.RowsChanged(RowCount());
    if (RowCount() > 0)
        Select(std::min(row, RowCount() - 1));
}

void ColorList::ColumnClicked(int column) {
    descending_ = sortKey_ == column - 1 && !descending_;
    sortKey_ = column - 1;
    sorted_ = true;
    const std::string selectedKey = SelectedKey();
    Sort();
    selected_.reset();
    pane_.RowsChanged(RowCount());
    if (const auto row = RowOfKey(selectedKey)) {
        Select(*row);
        ShowSelected();
    }
}

// As text, the numbers too, on purpose: "100" comes before "20".
void ColorList::Sort() {
    std::vector<std::pair<std::string, std::string>> rows; // sort key of the cell, color's key
    rows.reserve(keys_.size());
    for (std::string& key : keys_) {
        std::string sortKey = collation_.SortKey(TextOfKey(key, sortKey_ + 1));
        rows.emplace_back(std::move(sortKey), std::move(key));
    }
    std::ranges::stable_sort(rows, [this](const auto& left, const auto& right) {
        return descending_ ? left.first > right.first : left.first < right.first;
    });
    std::ranges::transform(rows, keys_.begin(), [](auto& row) { return std::move(row.second); });
}

std::string ColorList::CellText(int row, int column) const {
    return TextOfKey(KeyOfRow(row), column);
}

std::string ColorList::TextOfKey(const std::string& key, int column) const {
    const int index = library_.GetColornodeIndex(key);
    if (index == 0 || column < kNameColumn || column > kColumnCount)
        return {};
    const StoredColor& color = library_.Colors().ViewAt(index).color;
    if (column == kNameColumn)
        return color.name;
    return std::to_string(color.values[static_cast<std::size_t>(column - kNameColumn - 1)]);
}

int ColorList::FindRow(const std::string& text, int start) const {
    const std::string wanted = ToLowerAscii(text);
    for (int step = 0; step < RowCount(); ++step) {
        const int row = (start + step) % RowCount();
        if (ToLowerAscii(CellText(row, kNameColumn).substr(0, wanted.size())) == wanted)
            return row;
    }
    return -1;
}
