#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

// What could not be read of a foreign file.
enum class PaletteFault {
    Unreadable,   // a line or block that is no color: it is left out
    OutOfRange,   // a color with a value beyond its range: it is left out
    UnknownModel, // a color in a color model that is not known: it is left out
    NameBroken,   // a name with characters that are none; U+FFFD stands for them
    NameCut,      // a name longer than the limit
    Column,       // a column, or a cell, that means nothing here
    Ends,         // the file ends in the middle of something
    Count,        // the file says that it has another number of parts
    Rest,         // bytes behind the last part
    Limit,        // more bytes or colors than the limit, which are left out, or more groups, whose
                  // colors are without one
};
inline constexpr std::size_t kPaletteFaultCount = 10;

// How often what was met, and where first: the line of a text, the number of the color or block of
// another file; both from 1.
class PaletteFaults {
public:
    struct Met {
        std::size_t count = 0;
        std::size_t first = 0;
        bool operator==(const Met&) const = default;
    };

    void Add(PaletteFault fault, std::size_t place) noexcept {
        Met& met = met_[static_cast<std::size_t>(fault)];
        if (met.count++ == 0)
            met.first = place;
    }
    [[nodiscard]] const Met& Of(PaletteFault fault) const noexcept {
        return met_[static_cast<std::size_t>(fault)];
    }
    [[nodiscard]] bool IsNothing() const noexcept {
        return std::ranges::all_of(met_, [](const Met& met) { return met.count == 0; });
    }

private:
    std::array<Met, kPaletteFaultCount> met_{};
};
