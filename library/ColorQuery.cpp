#include "library/ColorQuery.h"

#include "common/CaseFolding.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr std::string_view kBlanks = " \t\r\n\v\f";
constexpr std::string_view kBetweenNumbers = " \t\r\n\v\f,;";
constexpr std::size_t kHexDigits = 6;
constexpr int kHexBase = 16;
constexpr int kHighestValue = 255;

std::vector<std::string_view> PartsOf(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
        if (text.empty())
            return parts;
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
}

// The whole text as a number without sign; nothing when it is none.
std::optional<int> NumberOf(std::string_view text, int base) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    if (error != std::errc() || stop != end || text.front() == '-')
        return {};
    return number;
}

std::optional<RedGreenBlue> ColorOfHex(std::string_view part) {
    if (part.size() != kHexDigits + 1 || part.front() != '#')
        return {};
    const std::optional<int> number = NumberOf(part.substr(1), kHexBase);
    if (!number)
        return {};
    return RedGreenBlue{*number >> 16, *number >> 8 & kHighestValue, *number & kHighestValue};
}

std::optional<RedGreenBlue> ColorOfNumbers(const std::vector<std::string_view>& parts) {
    std::array<int, 3> values{};
    if (parts.size() != values.size())
        return {};
    for (std::size_t index = 0; index < values.size(); ++index) {
        const std::optional<int> number = NumberOf(parts[index], 10);
        if (!number || *number > kHighestValue)
            return {};
        values[index] = *number;
    }
    return RedGreenBlue{values[0], values[1], values[2]};
}

} // namespace

ColorQuery ParseColorQuery(std::string_view text) {
    ColorQuery query;
    for (const std::string_view word : PartsOf(text, kBlanks))
        query.words.push_back(FoldCase(word));
    const std::vector<std::string_view> parts = PartsOf(text, kBetweenNumbers);
    query.color = parts.size() == 1 ? ColorOfHex(parts.front()) : ColorOfNumbers(parts);
    return query;
}
