#pragma once

#include "library/ColorStore.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

// Finds colours by their keys: a hash table with linear probing that holds nothing but the hashes
// of the keys and the colours' ids, eight bytes each.
class ColorKeyIndex {
public:
    using Hash = std::uint32_t;
    using IsWanted = std::function<bool(ColorId)>; // asked of colours with the same hash

    void Clear();
    void Reserve(std::size_t count);

    // The first of equal keys stays; false: isSame holds for a colour that was there already.
    bool Add(ColorId id, Hash hash, const IsWanted& isSame);

    // 0: none.
    [[nodiscard]] ColorId Find(Hash hash, const IsWanted& isWanted) const;

    // Nothing happens when the colour is not here.
    void Remove(ColorId id, Hash hash);

private:
    struct Place {
        Hash hash = 0;
        ColorId id = 0; // 0: free
    };

    [[nodiscard]] std::size_t After(std::size_t place) const noexcept {
        return (place + 1) & (places_.size() - 1);
    }
    [[nodiscard]] std::size_t HomeOf(Hash hash) const noexcept {
        return hash & (places_.size() - 1);
    }
    // Of the wanted colour, or the free place behind all others with the hash.
    [[nodiscard]] std::size_t PlaceOf(Hash hash, const IsWanted& isWanted) const;
    void Resize(std::size_t places);
    void CloseGap(std::size_t gap);

    std::vector<Place> places_; // a power of two
    std::size_t count_ = 0;
};
