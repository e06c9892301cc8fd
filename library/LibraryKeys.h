#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The keys of libraries, groups and colors, as they stand in library files too: "2D" is a library,
// "2DG1" its first group and "2DG1E7" a color of that group.
namespace LibraryKeys {

[[nodiscard]] std::string OfLibrary(std::size_t number);
[[nodiscard]] std::string OfGroup(const std::string& mainKey, std::size_t number);
[[nodiscard]] std::string OfColor(const std::string& groupKey, std::uint32_t number);

struct ColorKey {
    std::string_view group; // key
    std::uint32_t number = 0;
};
// The parts of a key that OfColor could have made; nothing for any other text.
[[nodiscard]] std::optional<ColorKey> PartsOfColor(std::string_view key);

// What a key has behind the key of what it is in; empty: it is not in there.
[[nodiscard]] std::string Within(std::string_view outerKey, std::string_view key);

} // namespace LibraryKeys
