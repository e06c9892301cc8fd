#include "common/ProfileSection.h"

#include "common/Text.h"

#include <algorithm>

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

constexpr bool IsControl(char character) noexcept {
    return static_cast<unsigned char>(character) < ' ';
}

constexpr bool IsKeyCharacter(char character) noexcept {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || character == '.' || character == '_' ||
           character == ' ';
}

// No comment and no line of another kind for any reader; blanks stand between its words only.
bool IsPlainKey(std::string_view key) {
    return !key.empty() && Trimmed(key) == key && std::ranges::all_of(key, IsKeyCharacter);
}

// No blanks or quotes at its ends, which some readers take off, and nothing that ends a line.
bool IsPlainValue(std::string_view value) {
    const auto isOdd = [](char character) {
        return character == ' ' || character == '"' || character == '\'';
    };
    return !value.empty() && !isOdd(value.front()) && !isOdd(value.back()) &&
           std::ranges::none_of(value, IsControl);
}

template <typename Use>
void ForEachLine(std::string_view lines, const Use& use) {
    while (!lines.empty()) {
        const std::size_t end = std::min(lines.find('\0'), lines.size());
        use(lines.substr(0, end));
        lines.remove_prefix(std::min(end + 1, lines.size()));
    }
}

bool IsThereOnce(std::string_view section, std::string_view names) {
    const std::string wanted = ToLowerAscii(section);
    int similar = 0;
    bool isExact = false;
    ForEachLine(names, [&](std::string_view name) {
        similar += ToLowerAscii(Trimmed(name)) == wanted ? 1 : 0;
        isExact = isExact || ToLowerAscii(name) == wanted;
    });
    return similar == 1 && isExact;
}

} // namespace

ProfileSection::ProfileSection(std::string_view section, std::string_view lines,
                               std::string_view names)
    : isOnlyOne_(IsThereOnce(section, names)) {
    ForEachLine(lines, [this](std::string_view line) { Add(line); });
}

void ProfileSection::Add(std::string_view line) {
    const std::size_t equals = std::min(line.find('='), line.size());
    const std::string_view key = line.substr(0, equals);
    const std::string_view value = line.substr(std::min(equals + 1, line.size()));
    const bool isPlain = Trimmed(key) == key && equals < line.size() && IsPlainValue(value);
    entries_.try_emplace(ToLowerAscii(Trimmed(key)), Entry{std::string(value), isPlain});
}

std::optional<std::string> ProfileSection::Find(std::string_view key,
                                                std::string_view fallback) const {
    if (!isOnlyOne_ || !IsPlainKey(key))
        return {};
    const auto found = entries_.find(ToLowerAscii(key));
    if (found != entries_.end())
        return found->second.isPlain ? std::optional(found->second.value) : std::nullopt;
    if (!fallback.empty() && !IsPlainValue(fallback)) // the platform treats it as a value
        return {};
    return std::string(fallback);
}
