#include "mainwindow/FindHits.h"

#include <algorithm>

namespace {

constexpr std::size_t kRecords = 2000; // looked at between two looks at the clock

} // namespace

LibraryRevision FindHits::Revision() const {
    return [&library = library_] { return library.Revision(); };
}

void FindHits::Search(const ColorQuery& query) {
    nearest_.reset();
    sorted_.clear();
    search_.emplace(library_.Colors(), Revision(), query);
    isDone_ = false;
}

void FindHits::SearchNearest(const ColorQuery& query, const RedGreenBlue& wanted) {
    search_.reset();
    sorted_.clear();
    nearest_.emplace(library_.Colors(), Revision(), wanted, kNearest, query);
    isDone_ = false;
}

template <class Way>
void FindHits::AdvanceFor(Way& way) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + slice_;
    do
        isDone_ = !way.Advance(kRecords);
    while (!isDone_ && Clock::now() < end);
}

FindHits::Change FindHits::Advance() {
    if (search_)
        return AdvanceSearch();
    return nearest_ ? AdvanceNearest() : Change::None;
}

// Colors with the values that are asked for stand before those with the words.
FindHits::Change FindHits::AdvanceSearch() {
    const int starts = search_->Starts();
    const std::size_t colorHits = search_->ColorHits().size();
    const std::size_t nameHits = search_->NameHits().size();
    AdvanceFor(*search_);
    if (search_->Starts() != starts || search_->ColorHits().size() != colorHits)
        return Change::AllRows;
    return search_->NameHits().size() != nameHits ? Change::MoreRows : Change::None;
}

FindHits::Change FindHits::AdvanceNearest() {
    const int starts = nearest_->Starts();
    const int looked = nearest_->Looked();
    AdvanceFor(*nearest_);
    if (nearest_->Starts() == starts && nearest_->Looked() == looked)
        return Change::None;
    sorted_ = nearest_->Sorted();
    return Change::AllRows;
}

int FindHits::Count() const noexcept {
    return static_cast<int>(search_ ? search_->ColorHits().size() + search_->NameHits().size()
                                    : sorted_.size());
}

ColorId FindHits::At(int row) const {
    const auto place = static_cast<std::size_t>(row);
    if (!search_)
        return sorted_.at(place).id;
    const std::vector<ColorId>& colorHits = search_->ColorHits();
    return place < colorHits.size() ? colorHits[place]
                                    : search_->NameHits().at(place - colorHits.size());
}

std::optional<double> FindHits::DifferenceAt(int row) const {
    if (!nearest_)
        return {};
    return sorted_.at(static_cast<std::size_t>(row)).difference;
}

std::optional<int> FindHits::RowOf(ColorId color) const {
    for (int row = 0; row < Count(); ++row)
        if (At(row) == color)
            return row;
    return {};
}
