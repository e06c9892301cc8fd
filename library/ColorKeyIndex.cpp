#include "library/ColorKeyIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace {

constexpr std::size_t kFewestPlaces = 16;

// At most three places of four are taken.
std::size_t PlacesFor(std::size_t count) {
    return std::bit_ceil(std::max(kFewestPlaces, count + count / 3 + 1));
}

} // namespace

void ColorKeyIndex::Clear() {
    places_ = {};
    count_ = 0;
}

void ColorKeyIndex::Reserve(std::size_t count) {
    if (PlacesFor(count) > places_.size())
        Resize(PlacesFor(count));
}

std::size_t ColorKeyIndex::PlaceOf(Hash hash, const IsWanted& isWanted) const {
    std::size_t place = HomeOf(hash);
    while (places_[place].id != 0 && (places_[place].hash != hash || !isWanted(places_[place].id)))
        place = After(place);
    return place;
}

bool ColorKeyIndex::Add(ColorId id, Hash hash, const IsWanted& isSame) {
    Reserve(count_ + 1);
    Place& place = places_[PlaceOf(hash, isSame)];
    if (place.id != 0)
        return false;
    place = {hash, id};
    ++count_;
    return true;
}

ColorId ColorKeyIndex::Find(Hash hash, const IsWanted& isWanted) const {
    return places_.empty() ? 0 : places_[PlaceOf(hash, isWanted)].id;
}

void ColorKeyIndex::Remove(ColorId id, Hash hash) {
    if (places_.empty())
        return;
    const std::size_t place = PlaceOf(hash, [id](ColorId other) { return other == id; });
    if (places_[place].id == 0)
        return;
    places_[place] = {};
    --count_;
    CloseGap(place);
}

// Colours behind the gap that a search would not reach any more move up.
void ColorKeyIndex::CloseGap(std::size_t gap) {
    const std::size_t mask = places_.size() - 1;
    for (std::size_t place = After(gap); places_[place].id != 0; place = After(place)) {
        const std::size_t home = HomeOf(places_[place].hash);
        if (((place - home) & mask) < ((place - gap) & mask))
            continue;
        places_[gap] = std::exchange(places_[place], {});
        gap = place;
    }
}

void ColorKeyIndex::Resize(std::size_t places) {
    const std::vector<Place> before = std::exchange(places_, std::vector<Place>(places));
    for (const Place& moved : before) {
        if (moved.id == 0)
            continue;
        std::size_t place = HomeOf(moved.hash);
        while (places_[place].id != 0)
            place = After(place);
        places_[place] = moved;
    }
}
