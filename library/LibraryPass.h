#pragma once

#include "library/ColorTable.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

// A number that is another one after each change of the open libraries.
using LibraryRevision = std::function<std::uint64_t()>;

// A way through all colors of the open libraries in slices, so that a window can do other things in
// between.  It begins anew when they have changed meanwhile.
class LibraryPass {
public:
    LibraryPass(const ColorTable& colors, LibraryRevision revision)
        : colors_(colors), revision_(std::move(revision)), seen_(Now()) {}

    // Calls look(id, color) for up to so many colors more, after startsAnew() when what was seen
    // does not hold any more.  False: all have been looked at.
    template <class StartsAnew, class Look>
    bool Advance(std::size_t records, const StartsAnew& startsAnew, const Look& look) {
        if (const State now = Now(); now != seen_) {
            seen_ = now;
            next_ = 1;
            ++starts_;
            startsAnew();
        }
        const int left = colors_.UpperBound() - next_ + 1;
        const int end = next_ + static_cast<int>(std::min(records, static_cast<std::size_t>(left)));
        for (; next_ < end; ++next_)
            look(colors_.IdAt(next_), colors_.ViewAt(next_).color);
        return next_ <= colors_.UpperBound();
    }

    // How many colors have been looked at since the start, and how often it has begun, from 1.
    [[nodiscard]] int Looked() const noexcept { return next_ - 1; }
    [[nodiscard]] int Starts() const noexcept { return starts_; }

private:
    // The count is in it so that a change nobody has told of leads to no place that is not there.
    using State = std::pair<std::uint64_t, int>;
    [[nodiscard]] State Now() const { return {revision_(), colors_.UpperBound()}; }

    const ColorTable& colors_;
    LibraryRevision revision_;
    State seen_;
    int next_ = 1;
    int starts_ = 1;
};
