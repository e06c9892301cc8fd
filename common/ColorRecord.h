#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

// Number of values of a color, and their order: the order of the automation interface's
// MaterialPropertyValues array.
inline constexpr std::size_t kColorValueCount = 9;

enum class ColorValue : std::size_t {
    Red,
    Green,
    Blue,
    Ambient,
    Diffuse,
    Specular,
    Shininess,
    Transparency,
    Emission
};

// Red, green and blue 0..255, the six material values 0..100.
using ColorValueArray = std::array<std::int16_t, kColorValueCount>;

// Highest value that the editor lets through for the value with this index; the lowest is 0.
[[nodiscard]] constexpr int MaximumOfColorValue(std::size_t index) noexcept {
    return index <= static_cast<std::size_t>(ColorValue::Blue) ? 255 : 100;
}

// One color of the library.  Names are UTF-8.
struct ColorRecord {
    std::string name;
    std::string key;      // group key, "E", decimal number; unique in the table
    std::string groupKey; // key of the group that holds the color
    bool isNew = false;   // made by the user, not read from a file
    ColorValueArray values{};
    std::string altName; // second text of the color; equal to the name when the color is made

    bool operator==(const ColorRecord&) const = default;
};
