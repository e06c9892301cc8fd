#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A cell of a table, as it stands in the text.
struct TableCell {
    std::string_view raw;          // without the quotes around it, or without blanks around it
    bool hasDoubledQuotes = false; // each two of them are one

    [[nodiscard]] std::string Text() const;
    void CopyTo(std::string& text) const;
};

// The records of a text with cells between separators.  A cell in double quotes may hold
// separators, line breaks and doubled quotes; source: RFC 4180.  A quote that is never closed is a
// character like others.
class TableRecords {
public:
    TableRecords(std::string_view text, char separator) noexcept;

    // False behind the last one.  Records without anything in them are passed over.
    [[nodiscard]] bool Next();

    // Valid until the next call.
    [[nodiscard]] const std::vector<TableCell>& Cells() const noexcept { return cells_; }

    // Whether the record has more than is given: cells beyond the limit, or something behind the
    // closing quote of a cell.
    [[nodiscard]] bool HasMore() const noexcept { return hasMore_; }

    // Of the record's first line, from 1.
    [[nodiscard]] std::size_t Line() const noexcept { return startLine_; }

private:
    void TakeRecord();
    void TakeCell(TableCell& cell);
    [[nodiscard]] bool TakeQuoted(TableCell& cell);
    void PassCell() noexcept;
    [[nodiscard]] std::size_t ClosingQuote(std::size_t start, bool& hasDoubled) const noexcept;
    [[nodiscard]] bool IsAtLineEnd() const noexcept;
    void PassLineEnd() noexcept;

    std::string_view text_;
    char separator_;
    std::array<bool, 256> ends_{}; // the characters that end a cell without quotes
    std::size_t place_ = 0;
    std::size_t line_ = 1;
    std::size_t startLine_ = 1;
    bool hasMore_ = false;
    std::vector<TableCell> cells_;
};

// A tab when the first line has one, else a semicolon when it has one, else a comma.
[[nodiscard]] char SeparatorOf(std::string_view text) noexcept;
