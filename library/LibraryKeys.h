#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The keys of libraries, groups and colors, as they stand in library files too: "2D" is a library,
// "2DG1" its first group and "2DG1E7" a color of that group.
namespace LibraryKeys {

inline constexpr char kGroupLetter = 'G';
inline constexpr char kColorLetter = 'E';

[[nodiscard]] inline std::string OfLibrary(std::size_t number) {
    return std::to_string(number) + "D";
}
[[nodiscard]] inline std::string OfGroup(const std::string& mainKey, std::size_t number) {
    return mainKey + kGroupLetter + std::to_string(number);
}
[[nodiscard]] inline std::string OfColor(const std::string& groupKey, std::uint32_t number) {
    return groupKey + kColorLetter + std::to_string(number);
}

} // namespace LibraryKeys
