#pragma once

#include "library/ColorStore.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

// Finds colours by their keys: a hash table with linear probing that holds nothing but ids, four
// bytes each.  It asks for a colour's key when it needs it.
class ColorKeyIndex {
public:
    // The key of a colour; the text lives until the next call.
    using KeyOf = std::function<std::string_view(ColorId)>;
    explicit ColorKeyIndex(KeyOf keyOf) : keyOf_(std::move(keyOf)) {}

    void Clear();
    void Reserve(std::size_t count);

    // The first of equal keys stays; false: the key was there already.
    bool Add(ColorId id);

    // 0: none.
    [[nodiscard]] ColorId Find(std::string_view key) const;

    void
    Remove(ColorId id); // while its key can still be asked; nothing happens when it is not here

private:
    [[nodiscard]] std::size_t HomeOf(std::string_view key) const noexcept;
    [[nodiscard]] std::size_t PlaceOf(std::string_view key) const; // its place, or the free one
    void Resize(std::size_t places);
    void CloseGap(std::size_t gap);

    KeyOf keyOf_;
    std::vector<ColorId> places_; // a power of two; 0: free
    std::size_t count_ = 0;
};
