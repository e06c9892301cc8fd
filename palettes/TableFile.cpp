#include "palettes/TableFile.h"

#include "common/ColorNumber.h"
#include "common/Numbers.h"
#include "palettes/PaletteText.h"
#include "palettes/TableCells.h"
#include "palettes/TableColumns.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <unordered_map>
#include <utility>

namespace TableFile {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kFirstMaterial = 3;
constexpr unsigned kAllThree = 0b111;

enum class Cell { Taken, Unreadable, OutOfRange };

// Most values are whole numbers of up to three digits; -1 for all others.
int PlainNumberOf(std::string_view text) {
    constexpr std::size_t kMostDigits = 3;
    if (text.empty() || text.size() > kMostDigits)
        return -1;
    int number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9')
            return -1;
        number = number * 10 + (digit - '0');
    }
    return number;
}

class TableReader {
public:
    explicit TableReader(std::string_view text)
        : text_(text), separator_(SeparatorOf(text)), records_(text, separator_) {}

    void Read() {
        while (records_.Next())
            ReadRecord();
    }

    // Whether it is a table of colors at all.
    [[nodiscard]] bool HasColumns() const noexcept { return !columns_.empty(); }
    [[nodiscard]] PaletteContent Take() { return std::move(content_); }

private:
    [[nodiscard]] bool HasDecimalCommas() const noexcept { return separator_ != ','; }

    void ReadRecord() {
        if (columns_.empty() && !TakeColumns())
            return;
        PaletteEntry* entry = content_.StartEntry(records_.Line());
        if (entry == nullptr)
            return;
        const Cell read = ReadCells(*entry);
        if (read == Cell::Taken)
            return content_.KeepEntry(records_.Line());
        content_.DropEntry();
        content_.Add(read == Cell::OutOfRange ? PaletteFault::OutOfRange : PaletteFault::Unreadable,
                     records_.Line());
    }

    // A header stands before everything else.
    bool TakeHeader() {
        if (std::exchange(isBehindFirst_, true))
            return false;
        columns_ = ColumnsOfHeader(records_.Cells()).value_or(TableColumns());
        for (std::size_t cell = 0; cell < columns_.size(); ++cell)
            if (columns_[cell] == TableColumn::Nothing && !records_.Cells()[cell].raw.empty())
                content_.Add(PaletteFault::Column, records_.Line());
        hasHeader_ = !columns_.empty();
        if (hasHeader_ && records_.HasMore())
            content_.Add(PaletteFault::Column, records_.Line());
        return hasHeader_;
    }

    // False: the record is not to be read as a color.
    bool TakeColumns() {
        const bool isHeader = TakeHeader();
        if (!isHeader)
            columns_ =
                ColumnsOfRecord(records_.Cells(), HasDecimalCommas()).value_or(TableColumns());
        if (columns_.empty())
            content_.Add(PaletteFault::Unreadable, records_.Line());
        else
            content_.Expect(EstimateLines(text_));
        return !isHeader && !columns_.empty();
    }

    Cell ReadCells(PaletteEntry& entry) {
        const std::vector<TableCell>& cells = records_.Cells();
        const std::size_t count = std::min(cells.size(), columns_.size());
        numbers_ = 0;
        hex_.reset();
        Cell worst = Cell::Taken;
        for (std::size_t cell = 0; cell < count && worst == Cell::Taken; ++cell)
            worst = ReadCell(cells[cell], columns_[cell], entry);
        if (worst == Cell::Taken && !SettleColor(entry))
            worst = Cell::Unreadable;
        if (worst == Cell::Taken)
            CountStrayCells();
        return worst;
    }

    // Cells behind the columns, and those of columns that no header has called useless already.
    void CountStrayCells() {
        const std::vector<TableCell>& cells = records_.Cells();
        bool isStray = records_.HasMore();
        const std::size_t first = hasHeader_ ? columns_.size() : 0;
        for (std::size_t cell = first; cell < cells.size(); ++cell)
            if (cell >= columns_.size() || columns_[cell] == TableColumn::Nothing)
                isStray = isStray || !cells[cell].raw.empty();
        if (isStray)
            content_.Add(PaletteFault::Column, records_.Line());
    }

    Cell ReadCell(const TableCell& cell, TableColumn column, PaletteEntry& entry) {
        if (IsValue(column))
            return ReadValue(cell.raw, static_cast<std::size_t>(column), entry);
        if (column == TableColumn::Name)
            cell.CopyTo(entry.name);
        else if (column == TableColumn::Group)
            entry.group = GroupOf(cell);
        else if (column == TableColumn::Hex)
            return ReadHex(cell.raw);
        return Cell::Taken;
    }

    Cell ReadValue(std::string_view text, std::size_t value, PaletteEntry& entry) {
        if (text.empty()) // there is none
            return Cell::Taken;
        const int plain = PlainNumberOf(text);
        if (plain >= 0)
            return TakeValue(plain, value, entry);
        const std::optional<double> read = NumberOfCell(text, HasDecimalCommas());
        if (!read)
            return Cell::Unreadable;
        // What is too large for the range is so after rounding, too.
        return TakeValue(static_cast<int>(std::clamp(RoundHalfToEven(*read), -1.0, 1000.0)), value,
                         entry);
    }

    Cell TakeValue(int number, std::size_t value, PaletteEntry& entry) {
        if (number < 0 || number > MaximumOfColorValue(value))
            return Cell::OutOfRange;
        entry.Set(value, static_cast<std::int16_t>(number));
        if (value < kFirstMaterial)
            numbers_ |= 1U << value;
        return Cell::Taken;
    }

    Cell ReadHex(std::string_view text) {
        if (text.empty())
            return Cell::Taken;
        const std::int32_t number = HexNumberOf(text, false);
        if (number < 0)
            return Cell::Unreadable;
        const RedGreenBlue turned = SplitColorNumber(static_cast<ColorNumber>(number));
        hex_ = {turned.blue, turned.green, turned.red}; // red comes first here
        return Cell::Taken;
    }

    // Numbers hold when all three are there; false: the record has no color.
    [[nodiscard]] bool SettleColor(PaletteEntry& entry) const noexcept {
        if (numbers_ == kAllThree)
            return true;
        if (hex_)
            entry.SetColor(*hex_);
        return hex_.has_value();
    }

    // Most records have the group of the one before.
    PaletteGroup GroupOf(const TableCell& cell) {
        if (cell.raw.empty())
            return kNoGroup;
        if (lastGroup_ != kNoGroup && !cell.hasDoubledQuotes && cell.raw == lastGroupName_)
            return lastGroup_;
        std::string name = cell.Text();
        const auto known = groups_.find(name);
        lastGroupName_ = name;
        lastGroup_ = known != groups_.end() ? known->second : NewGroup(std::move(name));
        return lastGroup_;
    }

    PaletteGroup NewGroup(std::string&& name) {
        const PaletteGroup group = content_.AddGroup(std::string(name), records_.Line());
        if (group != kNoGroup)
            groups_.emplace(std::move(name), group);
        return group;
    }

    std::string_view text_;
    char separator_;
    TableRecords records_;
    bool isBehindFirst_ = false;
    bool hasHeader_ = false;
    TableColumns columns_;
    unsigned numbers_ = 0; // a bit for each of red, green and blue, in the record that is read
    std::optional<RedGreenBlue> hex_; // of that record
    std::unordered_map<std::string, PaletteGroup> groups_;
    std::string lastGroupName_;
    PaletteGroup lastGroup_ = kNoGroup;
    PaletteContent content_;
};

constexpr char kWrittenSeparator = ',';
constexpr std::array kWrittenTexts = {TableColumn::Group, TableColumn::Name};

bool NeedsQuotes(std::string_view text) {
    const auto isBlank = [](char letter) { return letter == ' ' || letter == '\t'; };
    return text.find_first_of(",;\t\"\r\n") != std::string_view::npos ||
           (!text.empty() && (isBlank(text.front()) || isBlank(text.back())));
}

void AppendText(std::string& bytes, std::string_view text) {
    if (!NeedsQuotes(text)) {
        bytes += text;
        return;
    }
    bytes += '"';
    for (const char letter : text)
        bytes.append(letter == '"' ? 2 : 1, letter);
    bytes += '"';
}

void AppendNumber(std::string& bytes, int number) {
    constexpr std::size_t kLongestNumber = 6; // of 16 bits
    std::array<char, kLongestNumber> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    bytes.append(digits.data(), end);
}

void AppendHeader(std::string& bytes) {
    bytes.append(kMark);
    for (const TableColumn column : kWrittenTexts)
        bytes.append(TitleOf(column)) += kWrittenSeparator;
    for (std::size_t value = 0; value < kColorValueCount; ++value) {
        bytes.append(TitleOf(ColumnOfValue(value)));
        if (value + 1 < kColorValueCount)
            bytes += kWrittenSeparator;
    }
    bytes.append(kLineEnd);
}

// What comes back of a name.
std::string_view Kept(std::string_view name, std::size_t& changed) {
    const std::string_view kept = NameWithinLimit(name);
    changed += kept == name ? 0 : 1;
    return kept;
}

void AppendEntry(std::string& bytes, const PaletteEntry& entry, std::string_view group,
                 std::size_t& changedNames) {
    AppendText(bytes, group);
    bytes += kWrittenSeparator;
    AppendText(bytes, Kept(entry.name, changedNames));
    for (std::size_t value = 0; value < kColorValueCount; ++value) {
        bytes += kWrittenSeparator;
        if (entry.Has(value))
            AppendNumber(bytes, entry.values[value]);
    }
    bytes.append(kLineEnd);
}

// Groups without colors, without a name, or with that of another one.
std::size_t GroupsThatAreLost(const Palette& palette) {
    std::vector<bool> hasColors(palette.groups.size());
    for (const PaletteEntry& entry : palette.entries)
        if (entry.group != kNoGroup)
            hasColors[entry.group] = true;
    std::unordered_map<std::string_view, int> seen;
    std::size_t lost = 0;
    for (std::size_t group = 0; group < palette.groups.size(); ++group) {
        const std::string_view name = NameWithinLimit(palette.groups[group]);
        const bool isKept = hasColors[group] && !name.empty() && seen[name]++ == 0;
        lost += isKept ? 0 : 1;
    }
    return lost;
}

} // namespace

std::optional<PaletteContent> Read(std::string_view text) {
    TableReader reader(text);
    reader.Read();
    if (!reader.HasColumns())
        return {};
    return reader.Take();
}

PaletteWriting Write(const Palette& palette) {
    PaletteWriting writing;
    writing.losses.paletteNames = palette.name.empty() ? 0 : 1;
    writing.losses.groups = GroupsThatAreLost(palette);
    std::vector<std::string_view> groups;
    for (const std::string& group : palette.groups)
        groups.push_back(Kept(group, writing.losses.names));
    AppendHeader(writing.bytes);
    for (const PaletteEntry& entry : palette.entries)
        AppendEntry(writing.bytes, entry,
                    entry.group == kNoGroup ? std::string_view() : groups[entry.group],
                    writing.losses.names);
    return writing;
}

} // namespace TableFile
