#pragma once

#include <cstddef>

// What a foreign file may have.  What it says of itself is never believed: memory is taken for what
// was read.
namespace PaletteLimits {

inline constexpr std::size_t kMostBytes = std::size_t{256} * 1024 * 1024; // of a file
inline constexpr std::size_t kMostEntries = 1'000'000;
inline constexpr std::size_t kMostGroups = 100'000;
inline constexpr std::size_t kMostColumns = 64;                // of a table
inline constexpr std::size_t kLongestName = 4'000;             // bytes of UTF-8
inline constexpr std::size_t kMostOfAnAdobeColorFile = 0xFFFF; // colors: its count has 16 bits

} // namespace PaletteLimits
