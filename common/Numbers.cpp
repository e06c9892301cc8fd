#include "common/Numbers.h"

#include "common/RuntimeError.h"
#include "common/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr const char* kBlanks = " \t\r\n\v\f";

constexpr std::int64_t kHugeExponent = 1'000'000'000'000; // no text has that many digits

// "e-400" of the whole number; 0 without one.  Those that are larger than huge are huge.
std::int64_t ExponentOf(std::string_view number) noexcept {
    std::size_t start = number.find_first_of("eE");
    if (start == std::string_view::npos)
        return 0;
    ++start;
    if (start < number.size() && number[start] == '+')
        ++start;
    std::int64_t exponent = 0;
    const auto parsed =
        std::from_chars(number.data() + start, number.data() + number.size(), exponent);
    if (parsed.ec == std::errc::result_out_of_range)
        return number[start] == '-' ? -kHugeExponent : kHugeExponent;
    return std::clamp(exponent, -kHugeExponent, kHugeExponent);
}

// Of a number that no double holds: true when it is too near to 0, false when it is too large.
bool IsTooSmall(std::string_view number) noexcept {
    const std::string_view digits = number.substr(0, number.find_first_of("eE"));
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
    return point - first + ExponentOf(number) < 0;
}

// What stands for a number that no double holds.
double OutOfRangeValue(std::string_view number) noexcept {
    if (IsTooSmall(number))
        return 0;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    return number.starts_with('-') ? -kInfinity : kInfinity;
}

struct ParsedNumber {
    double value = 0;
    std::size_t length = 0; // characters used, leading blanks included; 0: no number
};

ParsedNumber ParseNumber(std::string_view text) noexcept {
    const std::size_t start = text.find_first_not_of(kBlanks);
    if (start == std::string_view::npos)
        return {};
    std::size_t digits = start;
    const bool plus = text[digits] == '+';
    if (plus)
        ++digits;
    // "inf" and "nan" are words here, not numbers, and only one sign is a sign.
    const std::size_t afterSign = text[start] == '-' ? start + 1 : digits;
    if (afterSign >= text.size() ||
        (text[afterSign] != '.' && (text[afterSign] < '0' || text[afterSign] > '9')))
        return {};
    ParsedNumber parsed;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data() + digits, end, parsed.value);
    if (error == std::errc::result_out_of_range)
        parsed.value = OutOfRangeValue({text.data() + digits, stop});
    else if (error != std::errc())
        return {};
    parsed.length = static_cast<std::size_t>(stop - text.data());
    return parsed;
}

// Without an exponent where that can be read.
std::string ReadableText(double number) {
    std::array<char, 40> buffer{};
    const auto format =
        std::abs(number) < 1e15 ? std::chars_format::fixed : std::chars_format::general;
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format, 6);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

// text: the number as the user knows it; empty: as it is.
template <typename Integer>
Integer RoundTo(double number, std::string_view text = {}) {
    using Limits = std::numeric_limits<Integer>;
    const double rounded = RoundHalfToEven(number);
    // Written so that a value that is not a number fails too.
    if (!(rounded >= Limits::min() && rounded <= Limits::max()))
        throw RuntimeError(ErrorNumber::Overflow, ErrorTexts::NumberOutOfRange,
                           {text.empty() ? ReadableText(number) : Quoted(text),
                            std::to_string(Limits::min()), std::to_string(Limits::max())});
    return static_cast<Integer>(rounded);
}

// A number of at most four plain digits: nearly every one that is read, and it always fits.
std::optional<std::int16_t> ShortWholeNumber(std::string_view text) noexcept {
    const bool isNegative = text.starts_with('-');
    const std::string_view digits = text.substr(isNegative ? 1 : 0);
    if (digits.empty() || digits.size() > 4)
        return {};
    int value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return {};
        value = value * 10 + (digit - '0');
    }
    return static_cast<std::int16_t>(isNegative ? -value : value);
}

} // namespace

double LeadingNumber(std::string_view text) noexcept {
    return ParseNumber(text).value;
}

double RoundHalfToEven(double number) noexcept {
    const double lower = std::floor(number);
    const double part = number - lower;
    if (part < 0.5)
        return lower;
    if (part > 0.5)
        return lower + 1;
    return std::fmod(lower, 2) == 0 ? lower : lower + 1;
}

std::int16_t RoundToInt16(double number) {
    return RoundTo<std::int16_t>(number);
}

std::int32_t RoundToInt32(double number) {
    return RoundTo<std::int32_t>(number);
}

double TextToDouble(std::string_view text) {
    const ParsedNumber parsed = ParseNumber(text);
    const bool onlyBlanksFollow =
        text.find_first_not_of(kBlanks, parsed.length) == std::string_view::npos;
    if (parsed.length == 0 || !onlyBlanksFollow)
        throw RuntimeError(ErrorNumber::TypeMismatch, ErrorTexts::NotANumber, {Quoted(text)});
    return parsed.value;
}

std::int16_t TextToInt16(std::string_view text) {
    const std::optional<std::int16_t> number = ShortWholeNumber(text);
    return number ? *number : RoundTo<std::int16_t>(TextToDouble(text), text);
}

std::int32_t TextToInt32(std::string_view text) {
    return RoundTo<std::int32_t>(TextToDouble(text), text);
}

bool TextToBoolean(std::string_view text) {
    const std::string lower = ToLowerAscii(text);
    if (lower == "true")
        return true;
    if (lower == "false")
        return false;
    return TextToDouble(text) != 0;
}

std::string BooleanToText(bool value) {
    return value ? "True" : "False";
}

std::string SingleToText(float value) {
    char buffer[64];
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    return error == std::errc() ? std::string(buffer, end) : std::string("0");
}
