#pragma once

#include "library/ColorMatch.h"
#include "library/LibraryPass.h"

#include <vector>

// Finds colors over all open libraries by name or by value.  What was found so far can be shown
// while the search goes on; hits only come, until it begins anew.
class ColorSearch {
public:
    // colors: must live as long as this.  A query for nothing finds nothing.
    ColorSearch(const ColorTable& colors, LibraryRevision revision, ColorQuery query)
        : match_(std::move(query)), pass_(colors, std::move(revision)) {}

    // Looks at up to so many colors more; false: it is done.  A thousand take less than a
    // millisecond.
    bool Advance(std::size_t records);

    // Colors whose red, green and blue are those of the query, and others with its words in their
    // names; each in the order of the table.
    [[nodiscard]] const std::vector<ColorId>& ColorHits() const noexcept { return colorHits_; }
    [[nodiscard]] const std::vector<ColorId>& NameHits() const noexcept { return nameHits_; }

    [[nodiscard]] int Looked() const noexcept { return pass_.Looked(); }
    // Another number than before: hits that were shown are to go.
    [[nodiscard]] int Starts() const noexcept { return pass_.Starts(); }

private:
    ColorMatch match_;
    LibraryPass pass_;
    std::vector<ColorId> colorHits_;
    std::vector<ColorId> nameHits_;
};
