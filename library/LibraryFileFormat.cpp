#include "library/LibraryFileFormat.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "library/FindByte.h"
#include "library/LeadingDigits.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

namespace LibraryFileFormat {

namespace {

constexpr std::size_t kTagLength = 2;
constexpr std::size_t kLongestNumber = std::numeric_limits<int>::digits10 + 2; // with its sign
constexpr const char* kDivisionSign = "\xC3\xB7";                              // U+00F7 in UTF-8
constexpr const char* kDivisionByte = "\xF7";
constexpr std::string_view kUnknownCharacter = "\xEF\xBF\xBD"; // U+FFFD

constexpr std::string_view kLibraryTag = "D#";
constexpr std::string_view kGroupTag = "G#";
constexpr std::string_view kColorTag = "E#";

bool HasTag(std::string_view record, std::string_view tag) {
    return record.size() >= kTagLength && record[0] == tag[0] && record[1] == tag[1];
}

void AppendNumber(std::string& text, int number) {
    std::array<char, kLongestNumber> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

void AppendLineEnd(std::string& text) {
    text.append("\"").append(kLineBreak);
}

bool StandsAt(std::string_view text, std::size_t place, std::string_view part) {
    if (part.size() > text.size() - place)
        return false;
    for (std::size_t index = 0; index < part.size(); ++index)
        if (text[place + index] != part[index])
            return false;
    return true;
}

// The place of a part that is not empty; the text's size: it is not there.
std::size_t FindPart(std::string_view text, std::string_view part) {
    std::size_t place = FindByte(text, part.front());
    while (place < text.size() && !StandsAt(text, place, part))
        place = FindByte(text, part.front(), place + 1);
    return place;
}

// Where the nine values begin: at the first separator.  A letter that stands in for the division
// sign may also stand in the name, so then it is the ninth from the end.
std::size_t FindValues(std::string_view text, std::string_view separator) {
    if (separator == kDivisionSign)
        return FindPart(text, separator);
    std::size_t place = text.size();
    for (std::size_t value = 0; value < kColorValueCount; ++value) {
        place = place == 0 ? std::string_view::npos : text.rfind(separator, place - 1);
        if (place == std::string_view::npos)
            return text.size();
    }
    return place;
}

std::string_view WithoutLast(std::string_view text) {
    return text.substr(0, text.empty() ? 0 : text.size() - 1);
}

bool IsInQuotesAndKnown(std::string_view line) {
    return line.size() > 1 && line.front() == '"' && line.back() == '"' &&
           FindPart(line, kUnknownCharacter) == line.size();
}

bool AreDigits(std::string_view text) {
    return std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
}

// value: one that could be read as a number.
bool IsSpelledAsSaved(std::string_view value) {
    const std::string_view digits = value.substr(value.starts_with('-') ? 1 : 0);
    return !digits.empty() && (digits.front() != '0' || value == "0") && AreDigits(digits);
}

// The fields of a text one by one.
class Fields {
public:
    Fields(std::string_view text, std::string_view separator)
        : rest_(text), separator_(separator) {}

    std::string_view Next() {
        const std::size_t end = FindPart(rest_, separator_);
        const std::string_view field = rest_.substr(0, end);
        isAtEnd_ = end == rest_.size();
        rest_.remove_prefix(isAtEnd_ ? rest_.size() : end + separator_.size());
        return field;
    }
    [[nodiscard]] bool IsAtEnd() const noexcept { return isAtEnd_; }

private:
    std::string_view rest_;
    std::string_view separator_;
    bool isAtEnd_ = false;
};

bool AreNineFields(std::string_view text, std::string_view separator) {
    Fields fields(text, separator);
    std::size_t count = 0;
    for (; !fields.IsAtEnd(); ++count)
        static_cast<void>(fields.Next());
    return count == kColorValueCount;
}

// False: at least one of the values is not plain, or there are not nine.
bool ReadPlainValues(std::string_view text, std::string_view separator, ColorValueArray& values) {
    for (std::int16_t& value : values) {
        if (&value != &values.front()) {
            if (!StandsAt(text, 0, separator))
                return false;
            text.remove_prefix(separator.size());
        }
        const LeadingDigits digits = LeadingDigits::Of(text);
        if (digits.count == 0 || (text.front() == '0' && digits.count > 1))
            return false;
        value = static_cast<std::int16_t>(digits.number);
        text.remove_prefix(digits.count);
    }
    return text.empty();
}

// The fields behind the colon; false when there are not exactly ten of them.
bool SplitColorFields(std::string_view text, std::string_view separator, Color& color) {
    const std::size_t nameEnd = FindValues(text, separator);
    if (nameEnd == text.size())
        return false;
    color.altName = text.substr(0, nameEnd);
    color.values = text.substr(nameEnd + separator.size());
    color.hasPlainValues = ReadPlainValues(color.values, separator, color.plainValues);
    return color.hasPlainValues || AreNineFields(color.values, separator);
}

// What follows the first colon, read as a number; the bar copes with any range.
std::int32_t CountOf(std::string_view record) {
    const std::size_t colon = record.find(':');
    const double count =
        LeadingNumber(colon == std::string_view::npos ? record : record.substr(colon + 1));
    return static_cast<std::int32_t>(
        std::clamp(count, 0.0, double{std::numeric_limits<std::int32_t>::max()}));
}

} // namespace

std::string_view WithoutFirstCharacter(std::string_view line) {
    std::size_t length = std::min<std::size_t>(1, line.size());
    while (length < line.size() && IsInsideCharacter(line[length]))
        ++length;
    return line.substr(length);
}

std::string_view WithoutQuotes(std::string_view line) {
    std::string_view record = WithoutFirstCharacter(line);
    while (!record.empty() && IsInsideCharacter(record.back()))
        record.remove_suffix(1);
    if (!record.empty())
        record.remove_suffix(1);
    return record;
}

std::string FieldSeparator(const AnsiCodePage& codePage) {
    return codePage.Encode(kDivisionSign).unstored.empty() ? kDivisionSign
                                                           : codePage.Decode(kDivisionByte);
}

RecordKind KindOf(std::string_view record) {
    if (HasTag(record, kColorTag))
        return RecordKind::Color;
    if (HasTag(record, kGroupTag))
        return RecordKind::Group;
    return HasTag(record, kLibraryTag) ? RecordKind::Library : RecordKind::Other;
}

std::optional<Header> ParseHeader(std::string_view record) {
    const std::size_t equals = record.find('=');
    if (!HasTag(record, kLibraryTag) || equals == std::string_view::npos)
        return {};
    return Header{std::string(record.substr(kTagLength, equals - kTagLength)), CountOf(record)};
}

std::optional<Group> ParseGroup(std::string_view record) {
    const std::size_t equals = record.find('=');
    if (!HasTag(record, kGroupTag) || equals == std::string_view::npos)
        return {};
    return Group{std::string(record.substr(kTagLength, equals - kTagLength)),
                 std::string(record.substr(equals + 1))};
}

std::optional<Color> ParseColor(std::string_view record, std::string_view separator) {
    std::optional<Color> color; // made where the caller has it: it is large, and there are many
    const std::size_t equals = FindByte(record, '=');
    if (!HasTag(record, kColorTag) || equals == record.size())
        return color;
    const std::size_t colon = FindByte(record, ':', equals + 1);
    if (colon == record.size())
        return color;
    color.emplace();
    color->name = record.substr(kTagLength, equals - kTagLength);
    color->groupKey = record.substr(equals + 1, colon - equals - 1);
    if (!SplitColorFields(record.substr(colon + 1), separator, *color))
        color.reset();
    return color;
}

bool IsHeaderTakenWhole(std::string_view line) {
    const std::string_view key = line.substr(std::min(line.find('='), line.size()));
    const std::size_t colon = key.find(':');
    return IsGroupTakenWhole(line) &&
           (colon == std::string_view::npos || AreDigits(WithoutLast(key.substr(colon + 1))));
}

bool IsGroupTakenWhole(std::string_view line) {
    return IsInQuotesAndKnown(line) && line.find('=') == line.rfind('=');
}

bool IsColorTakenWhole(std::string_view line, const Color& color, std::string_view separator) {
    if (!IsInQuotesAndKnown(line))
        return false;
    Fields fields(color.values, separator);
    bool asSaved = true;
    while (!color.hasPlainValues && asSaved && !fields.IsAtEnd())
        asSaved = IsSpelledAsSaved(fields.Next());
    return asSaved;
}

bool NameComesBack(std::string_view name) {
    return std::ranges::none_of(
        name, [](char letter) { return letter == '=' || letter == '\r' || letter == '\n'; });
}

bool SecondNameComesBack(std::string_view name, std::string_view separator) {
    // A letter that stands in for the division sign does no harm in a name.
    const bool endsEarly =
        separator == kDivisionSign && name.find(separator) != std::string_view::npos;
    return !endsEarly &&
           std::ranges::none_of(name, [](char letter) { return letter == '\r' || letter == '\n'; });
}

bool NamesComeBack(const StoredColor& color, std::string_view separator) {
    return NameComesBack(color.name) && SecondNameComesBack(color.AltName(), separator);
}

ColorValueArray ValuesOf(const Color& color, std::string_view separator) {
    if (color.hasPlainValues)
        return color.plainValues;
    ColorValueArray values{};
    Fields fields(color.values, separator);
    for (std::int16_t& value : values)
        value = TextToInt16(fields.Next());
    return values;
}

void AppendHeader(std::string& text, std::string_view name, std::string_view mainKey, int count) {
    text.append("\"").append(kLibraryTag).append(name).append("=").append(mainKey).append(":");
    AppendNumber(text, count);
    AppendLineEnd(text);
}

void AppendGroup(std::string& text, std::string_view name, std::string_view key) {
    text.append("\"").append(kGroupTag).append(name).append("=").append(key);
    AppendLineEnd(text);
}

void AppendColor(std::string& text, const ColorView& color, std::string_view separator) {
    text.append("\"").append(kColorTag).append(color.color.name).append("=").append(color.groupKey);
    text.append(":").append(color.color.AltName());
    for (const std::int16_t value : color.color.values) {
        text.append(separator);
        AppendNumber(text, value);
    }
    AppendLineEnd(text);
}

} // namespace LibraryFileFormat
