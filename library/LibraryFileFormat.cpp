#include "library/LibraryFileFormat.h"

#include "common/Numbers.h"
#include "common/Text.h"

#include <algorithm>
#include <limits>

namespace LibraryFileFormat {

namespace {

constexpr std::size_t kTagLength = 2;
constexpr const char* kDivisionSign = "\xC3\xB7"; // U+00F7 in UTF-8
constexpr const char* kDivisionByte = "\xF7";

bool HasTag(std::string_view record, std::string_view tag) {
    return record.substr(0, kTagLength) == tag;
}

bool IsContinuationByte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::string Quoted(const std::string& record) {
    return '"' + record + '"' + kLineBreak;
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

std::vector<std::string_view> SplitLines(std::string_view content) {
    std::vector<std::string_view> lines;
    while (!content.empty()) {
        const std::size_t end = content.find_first_of("\r\n");
        lines.push_back(content.substr(0, end));
        if (end == std::string_view::npos)
            break;
        content.remove_prefix(end + (content.substr(end, 2) == kLineBreak ? 2 : 1));
    }
    return lines;
}

std::string_view WithoutFirstCharacter(std::string_view line) {
    std::size_t length = std::min<std::size_t>(1, line.size());
    while (length < line.size() && IsContinuationByte(line[length]))
        ++length;
    return line.substr(length);
}

std::string_view WithoutQuotes(std::string_view line) {
    std::string_view record = WithoutFirstCharacter(line);
    while (!record.empty() && IsContinuationByte(record.back()))
        record.remove_suffix(1);
    if (!record.empty())
        record.remove_suffix(1);
    return record;
}

std::string FieldSeparator(const AnsiCodePage& codePage) {
    return codePage.Encode(kDivisionSign).unstored.empty() ? kDivisionSign
                                                           : codePage.Decode(kDivisionByte);
}

std::optional<Header> ParseHeader(std::string_view record) {
    const std::size_t equals = record.find('=');
    if (!HasTag(record, "D#") || equals == std::string_view::npos)
        return {};
    return Header{std::string(record.substr(kTagLength, equals - kTagLength)), CountOf(record)};
}

std::optional<Group> ParseGroup(std::string_view record) {
    const std::size_t equals = record.find('=');
    if (!HasTag(record, "G#") || equals == std::string_view::npos)
        return {};
    return Group{std::string(record.substr(kTagLength, equals - kTagLength)),
                 std::string(record.substr(equals + 1))};
}

std::optional<Color> ParseColor(std::string_view record, std::string_view separator) {
    const std::size_t equals = record.find('=');
    if (!HasTag(record, "E#") || equals == std::string_view::npos)
        return {};
    const std::size_t colon = record.find(':', equals + 1);
    if (colon == std::string_view::npos)
        return {};
    const std::vector<std::string> fields = SplitFields(record.substr(colon + 1), separator);
    if (fields.size() != 1 + kColorValueCount)
        return {};
    Color color{std::string(record.substr(kTagLength, equals - kTagLength)),
                std::string(record.substr(equals + 1, colon - equals - 1)),
                fields.front(),
                {}};
    std::copy(fields.begin() + 1, fields.end(), color.values.begin());
    return color;
}

ColorValueArray ValuesOf(const Color& color) {
    ColorValueArray values{};
    std::ranges::transform(color.values, values.begin(),
                           [](const std::string& text) { return TextToInt16(text); });
    return values;
}

std::string FormatHeader(std::string_view name, std::string_view mainKey, int count) {
    std::string record = "D#";
    record.append(name).append("=").append(mainKey).append(":").append(std::to_string(count));
    return Quoted(record);
}

std::string FormatGroup(std::string_view name, std::string_view key) {
    std::string record = "G#";
    record.append(name).append("=").append(key);
    return Quoted(record);
}

std::string FormatColor(const ColorRecord& color, std::string_view separator) {
    std::string record = "E#" + color.name + "=" + color.groupKey + ":" + color.altName;
    for (const std::int16_t value : color.values)
        record.append(separator).append(std::to_string(value));
    return Quoted(record);
}

} // namespace LibraryFileFormat
