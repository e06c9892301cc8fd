#include "library/LibraryKeys.h"

#include <charconv>

namespace LibraryKeys {

namespace {

constexpr char kLibraryLetter = 'D';
constexpr char kGroupLetter = 'G';
constexpr char kColorLetter = 'E';

} // namespace

std::string OfLibrary(std::size_t number) {
    return std::to_string(number) + kLibraryLetter;
}

std::string OfGroup(const std::string& mainKey, std::size_t number) {
    return mainKey + kGroupLetter + std::to_string(number);
}

std::string OfColor(const std::string& groupKey, std::uint32_t number) {
    return groupKey + kColorLetter + std::to_string(number);
}

std::optional<ColorKey> PartsOfColor(std::string_view key) {
    const std::size_t letter = key.rfind(kColorLetter);
    if (letter == std::string_view::npos)
        return {};
    const std::string_view digits = key.substr(letter + 1);
    const char* const end = digits.data() + digits.size();
    ColorKey parts{key.substr(0, letter)};
    const auto [stop, error] = std::from_chars(digits.data(), end, parts.number);
    const bool isAsWritten = digits == "0" || !digits.starts_with('0');
    return error == std::errc() && stop == end && isAsWritten ? std::optional(parts) : std::nullopt;
}

std::string Within(std::string_view outerKey, std::string_view key) {
    return std::string(key.starts_with(outerKey) ? key.substr(outerKey.size()) : "");
}

} // namespace LibraryKeys
