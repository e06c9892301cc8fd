#include "palettes/TableColumns.h"

#include "common/CaseFolding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace {

struct Title {
    std::string_view text; // folded
    TableColumn column;
};

constexpr TableColumn ColumnOf(ColorValue value) {
    return ColumnOfValue(static_cast<std::size_t>(value));
}

// The first one of a column is the one that is written.
constexpr Title kTitles[] = {
    {"group", TableColumn::Group},
    {"name", TableColumn::Name},
    {"red", ColumnOf(ColorValue::Red)},
    {"green", ColumnOf(ColorValue::Green)},
    {"blue", ColumnOf(ColorValue::Blue)},
    {"ambient", ColumnOf(ColorValue::Ambient)},
    {"diffuse", ColumnOf(ColorValue::Diffuse)},
    {"specular", ColumnOf(ColorValue::Specular)},
    {"shininess", ColumnOf(ColorValue::Shininess)},
    {"transparency", ColumnOf(ColorValue::Transparency)},
    {"emission", ColumnOf(ColorValue::Emission)},
    {"hex", TableColumn::Hex},
    {"color", TableColumn::Hex},
    {"colour", TableColumn::Hex},
    {"farbe", TableColumn::Hex},
    {"rgb", TableColumn::Hex},
    {"html", TableColumn::Hex},
    {"r", ColumnOf(ColorValue::Red)},
    {"g", ColumnOf(ColorValue::Green)},
    {"b", ColumnOf(ColorValue::Blue)},
    {"rot", ColumnOf(ColorValue::Red)},
    {"grün", ColumnOf(ColorValue::Green)},
    {"gruen", ColumnOf(ColorValue::Green)},
    {"blau", ColumnOf(ColorValue::Blue)},
    {"gruppe", TableColumn::Group},
    {"umgebung", ColumnOf(ColorValue::Ambient)},
    {"diffus", ColumnOf(ColorValue::Diffuse)},
    {"spiegelung", ColumnOf(ColorValue::Specular)},
    {"glanz", ColumnOf(ColorValue::Shininess)},
    {"transparenz", ColumnOf(ColorValue::Transparency)},
};

constexpr std::size_t kHexDigits = 6;
constexpr int kHexBase = 16;

TableColumn ColumnOfTitle(const TableCell& cell) {
    const std::string text = FoldCase(cell.Text());
    const Title* title =
        std::ranges::find_if(kTitles, [&](const Title& each) { return each.text == text; });
    return title == std::end(kTitles) ? TableColumn::Nothing : title->column;
}

bool Has(const TableColumns& columns, TableColumn column) {
    return std::ranges::find(columns, column) != columns.end();
}

bool HaveColor(const TableColumns& columns) {
    return Has(columns, TableColumn::Hex) ||
           (Has(columns, ColumnOf(ColorValue::Red)) && Has(columns, ColumnOf(ColorValue::Green)) &&
            Has(columns, ColumnOf(ColorValue::Blue)));
}

// Where a color stands in a record, with the values behind it.
struct ColorPlace {
    std::size_t start = 0;
    std::size_t count = 0;
    bool isHex = false;
};

std::size_t CountNumbers(const std::vector<TableCell>& cells, std::size_t start, std::size_t most,
                         bool hasDecimalCommas) {
    std::size_t count = 0;
    while (count < most && start + count < cells.size() &&
           NumberOfCell(cells[start + count].raw, hasDecimalCommas))
        ++count;
    return count;
}

std::optional<ColorPlace> FindColor(const std::vector<TableCell>& cells, bool hasDecimalCommas) {
    for (std::size_t start = 0; start < cells.size(); ++start) {
        if (HexNumberOf(cells[start].raw, true) >= 0)
            return ColorPlace{
                start, 1 + CountNumbers(cells, start + 1, kColorValueCount - 3, hasDecimalCommas),
                true};
        const std::size_t count = CountNumbers(cells, start, kColorValueCount, hasDecimalCommas);
        if (count >= 3)
            return ColorPlace{start, count, false};
    }
    return {};
}

void SetTexts(TableColumns& columns, const ColorPlace& color) {
    const std::size_t behind = color.start + color.count;
    if (color.start == 1) {
        columns[0] = TableColumn::Name;
    } else if (color.start > 1) {
        columns[color.start - 2] = TableColumn::Group;
        columns[color.start - 1] = TableColumn::Name;
    } else {
        if (behind < columns.size())
            columns[behind] = TableColumn::Name;
        if (behind + 1 < columns.size())
            columns[behind + 1] = TableColumn::Group;
    }
}

// With a decimal point, in room of its own.
constexpr std::size_t kLongestNumber = 32;

std::optional<double> PlainNumber(std::string_view text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    // "inf" and "nan" are words here.
    const bool isWord = !text.empty() && text.back() >= 'A';
    if (error != std::errc() || stop != end || isWord)
        return {};
    return number;
}

std::optional<double> NumberWithComma(std::string_view text) {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos)
        return PlainNumber(text);
    if (text.size() > kLongestNumber || text.find('.') != std::string_view::npos)
        return {};
    std::array<char, kLongestNumber> pointed{};
    std::ranges::copy(text, pointed.begin());
    pointed[comma] = '.';
    return PlainNumber({pointed.data(), text.size()});
}

} // namespace

std::string_view TitleOf(TableColumn column) noexcept {
    const Title* title =
        std::ranges::find_if(kTitles, [&](const Title& each) { return each.column == column; });
    return title == std::end(kTitles) ? std::string_view() : title->text;
}

std::optional<TableColumns> ColumnsOfHeader(const std::vector<TableCell>& cells) {
    TableColumns columns;
    for (const TableCell& cell : cells) {
        const TableColumn column = ColumnOfTitle(cell);
        // Of two columns with one meaning the first has it.
        columns.push_back(Has(columns, column) ? TableColumn::Nothing : column);
    }
    if (!HaveColor(columns))
        return {};
    return columns;
}

std::optional<TableColumns> ColumnsOfRecord(const std::vector<TableCell>& cells,
                                            bool hasDecimalCommas) {
    const std::optional<ColorPlace> color = FindColor(cells, hasDecimalCommas);
    if (!color)
        return {};
    TableColumns columns(cells.size(), TableColumn::Nothing);
    const std::size_t missing = color->isHex ? 2 : 0; // one cell for three values
    for (std::size_t cell = 0; cell < color->count; ++cell)
        columns[color->start + cell] = ColumnOfValue(cell + missing);
    if (color->isHex)
        columns[color->start] = TableColumn::Hex;
    SetTexts(columns, *color);
    return columns;
}

std::optional<double> NumberOfCell(std::string_view text, bool hasDecimalCommas) {
    return hasDecimalCommas ? NumberWithComma(text) : PlainNumber(text);
}

std::int32_t HexNumberOf(std::string_view text, bool needsSign) noexcept {
    const bool hasSign = text.starts_with('#');
    if (hasSign)
        text.remove_prefix(1);
    if ((needsSign && !hasSign) || text.size() != kHexDigits || text.front() == '-')
        return -1;
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, kHexBase);
    return error == std::errc() && stop == end ? number : -1;
}
