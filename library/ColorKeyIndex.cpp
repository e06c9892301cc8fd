#include "library/ColorKeyIndex.h"

#include <bit>
#include <string>
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

std::size_t ColorKeyIndex::HomeOf(std::string_view key) const noexcept {
    return std::hash<std::string_view>()(key) & (places_.size() - 1);
}

std::size_t ColorKeyIndex::PlaceOf(std::string_view key) const {
    std::size_t place = HomeOf(key);
    while (places_[place] != 0 && keyOf_(places_[place]) != key)
        place = (place + 1) & (places_.size() - 1);
    return place;
}

bool ColorKeyIndex::Add(ColorId id) {
    Reserve(count_ + 1);
    const std::string key(keyOf_(id));
    const std::size_t place = PlaceOf(key);
    if (places_[place] != 0)
        return false;
    places_[place] = id;
    ++count_;
    return true;
}

ColorId ColorKeyIndex::Find(std::string_view key) const {
    return places_.empty() ? 0 : places_[PlaceOf(key)];
}

void ColorKeyIndex::Remove(ColorId id) {
    if (places_.empty())
        return;
    const std::string key(keyOf_(id));
    const std::size_t place = PlaceOf(key);
    if (places_[place] != id)
        return;
    places_[place] = 0;
    --count_;
    CloseGap(place);
}

// Colours behind the gap that a search would not reach any more move up.
void ColorKeyIndex::CloseGap(std::size_t gap) {
    const std::size_t mask = places_.size() - 1;
    for (std::size_t place = (gap + 1) & mask; places_[place] != 0; place = (place + 1) & mask) {
        const std::size_t home = HomeOf(keyOf_(places_[place]));
        if (((place - home) & mask) < ((place - gap) & mask))
            continue;
        places_[gap] = std::exchange(places_[place], 0);
        gap = place;
    }
}

void ColorKeyIndex::Resize(std::size_t places) {
    const std::vector<ColorId> before = std::exchange(places_, std::vector<ColorId>(places));
    for (const ColorId id : before) {
        if (id == 0)
            continue;
        std::size_t place = HomeOf(keyOf_(id));
        while (places_[place] != 0)
            place = (place + 1) & (places - 1);
        places_[place] = id;
    }
}
