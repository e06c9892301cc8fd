#pragma once

#include "common/ColorNumber.h"
#include "common/ColorRecord.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

// Place of a group in Palette::groups.
using PaletteGroup = std::uint32_t;
inline constexpr PaletteGroup kNoGroup = std::numeric_limits<PaletteGroup>::max();

// One color of a foreign file: its name and those of the nine values that the file had, in the
// order and the ranges of a ColorRecord.  Red, green and blue are always there.
struct PaletteEntry {
    std::string name; // UTF-8; may be empty
    PaletteGroup group = kNoGroup;
    ColorValueArray values{}; // 0 where the file had none

    [[nodiscard]] bool Has(std::size_t value) const noexcept { return (had_ >> value & 1U) != 0; }
    // Whether there is any beside red, green and blue.
    [[nodiscard]] bool HasMaterial() const noexcept { return had_ != kRedGreenBlue; }
    void Set(std::size_t value, std::int16_t number) noexcept {
        values[value] = number;
        had_ = static_cast<std::uint16_t>(had_ | 1U << value);
    }

    [[nodiscard]] RedGreenBlue Color() const noexcept { return {values[0], values[1], values[2]}; }
    void SetColor(const RedGreenBlue& color) noexcept {
        values[0] = static_cast<std::int16_t>(color.red);
        values[1] = static_cast<std::int16_t>(color.green);
        values[2] = static_cast<std::int16_t>(color.blue);
    }

    bool operator==(const PaletteEntry&) const = default;

private:
    static constexpr std::uint16_t kRedGreenBlue = 0b111;
    std::uint16_t had_ = kRedGreenBlue; // a bit for each value
};

// What a foreign file holds.
struct Palette {
    std::string name;                // UTF-8; empty: the file names none
    std::vector<std::string> groups; // names, UTF-8; also groups without colors
    std::vector<PaletteEntry> entries;

    bool operator==(const Palette&) const = default;
};
