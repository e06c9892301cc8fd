#pragma once

#include <cstddef>

// What of a palette a written file does not hold: how many of each.
struct PaletteLosses {
    std::size_t paletteNames = 0; // 1: that of the palette
    std::size_t groups = 0;       // that do not come back, or not as groups of their own
    std::size_t names = 0;        // of colors and groups, cut or with other characters
    std::size_t values = 0;       // colors whose material values are not there
    std::size_t entries = 0;      // colors that are not there

    bool operator==(const PaletteLosses&) const = default;
    [[nodiscard]] bool IsNothing() const noexcept { return *this == PaletteLosses(); }
};
