#pragma once

#include "common/ColorRecord.h"
#include "palettes/TableCells.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// What a column of a table holds; the first ones are the nine values in their order.
enum class TableColumn : std::uint8_t {
    Name = kColorValueCount,
    Group,
    Hex, // "#RRGGBB"
    Nothing,
};

// The columns of a table from left to right.
using TableColumns = std::vector<TableColumn>;

[[nodiscard]] constexpr TableColumn ColumnOfValue(std::size_t value) noexcept {
    return static_cast<TableColumn>(value);
}
[[nodiscard]] constexpr bool IsValue(TableColumn column) noexcept {
    return static_cast<std::size_t>(column) < kColorValueCount;
}

// How a writer calls a column; Nothing has no name.
[[nodiscard]] std::string_view TitleOf(TableColumn column) noexcept;

// By the titles of a first record, in English or German, in either letter case; nothing when it has
// none for a color, so that it is no header.
[[nodiscard]] std::optional<TableColumns> ColumnsOfHeader(const std::vector<TableCell>& cells);

// By a record of a table without header: texts, then a color, as three to nine numbers or as
// "#RRGGBB" with up to six numbers behind it, then texts.  One text is the name; two before the
// color are group and name, two behind it name and group.  Nothing when there is no color.
[[nodiscard]] std::optional<TableColumns> ColumnsOfRecord(const std::vector<TableCell>& cells,
                                                          bool hasDecimalCommas);

// The text as a number, with a decimal point or, where they are allowed, a decimal comma.
[[nodiscard]] std::optional<double> NumberOfCell(std::string_view text, bool hasDecimalCommas);

// "#RRGGBB", and without its sign where the column says what it is; -1 when it is none.
[[nodiscard]] std::int32_t HexNumberOf(std::string_view text, bool needsSign) noexcept;
