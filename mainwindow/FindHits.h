#pragma once

#include "common/ColorNumber.h"
#include "library/ColorLibrary.h"
#include "library/ColorSearch.h"
#include "library/NearestColors.h"

#include <chrono>
#include <optional>
#include <vector>

// The colors of all open libraries that a text asks for, or those of them that look most like a
// given color.  They are found in slices; when the libraries have changed meanwhile, the search
// begins anew.  Rows count from 0.
class FindHits {
public:
    static constexpr std::size_t kNearest = 100;
    // So short that a window stays quick: what is typed waits for at most one slice.
    static constexpr std::chrono::milliseconds kSlice{10};

    // library: must live as long as this.  slice: how long Advance may take.
    FindHits(const ColorLibrary& library, std::chrono::milliseconds slice)
        : library_(library), slice_(slice) {}

    // Other hits from now on: none, until it advances.
    void Search(const ColorQuery& query);
    // A query for nothing asks for all colors here.
    void SearchNearest(const ColorQuery& query, const RedGreenBlue& wanted);

    enum class Change { None, MoreRows, AllRows };
    // Goes on for a slice, and gives what has become of the rows.
    Change Advance();
    // All colors have been looked at.
    [[nodiscard]] bool IsDone() const noexcept { return isDone_; }

    [[nodiscard]] int Count() const noexcept;
    [[nodiscard]] ColorId At(int row) const; // row: below Count()
    // From the given color, where there is one.
    [[nodiscard]] std::optional<double> DifferenceAt(int row) const;
    [[nodiscard]] std::optional<int> RowOf(ColorId color) const;

private:
    [[nodiscard]] LibraryRevision Revision() const;
    template <class Way>
    void AdvanceFor(Way& way);
    Change AdvanceSearch();
    Change AdvanceNearest();

    const ColorLibrary& library_;
    std::chrono::milliseconds slice_;
    std::optional<ColorSearch> search_; // one of the two, once something is wanted
    std::optional<NearestColors> nearest_;
    std::vector<NearColor> sorted_; // of nearest_
    bool isDone_ = true;
};
