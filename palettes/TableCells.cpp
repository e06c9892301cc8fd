#include "palettes/TableCells.h"

#include "palettes/PaletteLimits.h"
#include "palettes/PaletteText.h"

#include <algorithm>

namespace {

constexpr std::string_view kLineEnds = "\r\n";

bool IsLineEnd(char letter) {
    return letter == '\n' || letter == '\r';
}

bool IsBlank(char letter) {
    return letter == ' ' || letter == '\t';
}

bool AreAllEmpty(const std::vector<TableCell>& cells) {
    return std::ranges::all_of(cells, [](const TableCell& cell) { return cell.raw.empty(); });
}

} // namespace

std::string TableCell::Text() const {
    if (!hasDoubledQuotes)
        return std::string(raw);
    std::string text;
    for (std::size_t place = 0; place < raw.size(); ++place) {
        text += raw[place];
        if (raw[place] == '"')
            ++place;
    }
    return text;
}

bool TableRecords::Next() {
    do {
        if (place_ >= text_.size())
            return false;
        TakeRecord();
    } while (AreAllEmpty(cells_));
    return true;
}

void TableRecords::TakeRecord() {
    cells_.clear();
    isTooLong_ = false;
    startLine_ = line_;
    while (true) {
        const TableCell cell = TakeCell();
        if (cells_.size() < PaletteLimits::kMostColumns)
            cells_.push_back(cell);
        else
            isTooLong_ = true;
        if (place_ >= text_.size())
            return;
        if (IsAtLineEnd())
            return PassLineEnd();
        ++place_; // the separator
    }
}

bool TableRecords::IsAtLineEnd() const noexcept {
    return IsLineEnd(text_[place_]);
}

void TableRecords::PassLineEnd() noexcept {
    place_ += text_.substr(place_).starts_with(kLineEnds) ? kLineEnds.size() : 1;
    ++line_;
}

TableCell TableRecords::TakeCell() {
    TableCell cell;
    if (TakeQuoted(cell))
        return cell;
    const std::size_t start = place_;
    while (place_ < text_.size() && text_[place_] != separator_ && !IsAtLineEnd())
        ++place_;
    cell.raw = WithoutBlanksAround(text_.substr(start, place_ - start));
    return cell;
}

// False, and nothing taken: the cell is not in quotes.
bool TableRecords::TakeQuoted(TableCell& cell) {
    std::size_t start = place_;
    while (start < text_.size() && IsBlank(text_[start]) && text_[start] != separator_)
        ++start;
    if (noneCloses_ || start >= text_.size() || text_[start] != '"')
        return false;
    const std::size_t end = ClosingQuote(start + 1, cell.hasDoubledQuotes);
    if (end == std::string_view::npos) {
        noneCloses_ = true;
        cell.hasDoubledQuotes = false;
        return false;
    }
    cell.raw = text_.substr(start + 1, end - start - 1);
    line_ += static_cast<std::size_t>(std::ranges::count(cell.raw, '\n'));
    place_ = end + 1;
    while (place_ < text_.size() && text_[place_] != separator_ && !IsAtLineEnd())
        ++place_;
    return true;
}

std::size_t TableRecords::ClosingQuote(std::size_t start, bool& hasDoubled) const noexcept {
    std::size_t quote = text_.find('"', start);
    while (quote != std::string_view::npos && text_.substr(quote + 1).starts_with('"')) {
        hasDoubled = true;
        quote = text_.find('"', quote + 2);
    }
    return quote;
}

char SeparatorOf(std::string_view text) noexcept {
    const std::string_view line =
        text.substr(0, text.find_first_of(kLineEnds, text.find_first_not_of(kLineEnds)));
    for (const char separator : {'\t', ';'})
        if (line.find(separator) != std::string_view::npos)
            return separator;
    return ',';
}
