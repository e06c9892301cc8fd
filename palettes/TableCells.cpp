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

void TableCell::CopyTo(std::string& text) const {
    if (!hasDoubledQuotes) {
        text = raw;
        return;
    }
    text.clear();
    for (std::size_t place = 0; place < raw.size(); ++place) {
        text += raw[place];
        if (raw[place] == '"')
            ++place;
    }
}

std::string TableCell::Text() const {
    std::string text;
    CopyTo(text);
    return text;
}

TableRecords::TableRecords(std::string_view text, char separator) noexcept
    : text_(text), separator_(separator) {
    for (const char letter : {separator, '\r', '\n'})
        ends_[static_cast<unsigned char>(letter)] = true;
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
    hasMore_ = false;
    startLine_ = line_;
    while (true) {
        TakeCell(cells_.emplace_back());
        if (cells_.size() > PaletteLimits::kMostColumns) {
            cells_.pop_back();
            hasMore_ = true;
        }
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

void TableRecords::TakeCell(TableCell& cell) {
    if (place_ < text_.size() && (IsBlank(text_[place_]) || text_[place_] == '"')) {
        while (place_ < text_.size() && IsBlank(text_[place_]) && text_[place_] != separator_)
            ++place_;
        if (place_ < text_.size() && text_[place_] == '"' && TakeQuoted(cell))
            return;
    }
    const char* const start = text_.data() + place_;
    PassCell();
    const char* end = text_.data() + place_;
    while (end > start && IsBlank(end[-1]))
        --end;
    cell.raw = {start, static_cast<std::size_t>(end - start)};
}

void TableRecords::PassCell() noexcept {
    // Locals: a member would be stored at each character.
    const std::string_view text = text_;
    std::size_t place = place_;
    while (place < text.size() && !ends_[static_cast<unsigned char>(text[place])])
        ++place;
    place_ = place;
}

// False, and nothing taken: the quote here is never closed.  That happens once at most: each quote
// behind it is one of two, so that a cell which begins with one is closed by itself.
bool TableRecords::TakeQuoted(TableCell& cell) {
    bool hasDoubled = false;
    const std::size_t end = ClosingQuote(place_ + 1, hasDoubled);
    if (end == std::string_view::npos)
        return false;
    cell = {text_.substr(place_ + 1, end - place_ - 1), hasDoubled};
    line_ += static_cast<std::size_t>(std::ranges::count(cell.raw, '\n'));
    place_ = end + 1;
    PassCell();
    const std::string_view behind = text_.substr(end + 1, place_ - end - 1);
    hasMore_ = hasMore_ || !std::ranges::all_of(behind, IsBlank);
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
