#pragma once

#include "library/ColorStore.h"
#include "library/ColorView.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

// The colors of a table as they were at one moment, whatever happens to the table afterwards.
// Another thread may read it; to make and to destroy it is for the thread of the table.
class ColorSnapshot {
public:
    // order: ids of all colors.  groupKeys: by the groups' numbers.
    ColorSnapshot(ColorStore store, std::vector<ColorId> order, std::vector<std::string> groupKeys)
        : store_(std::move(store)), order_(std::move(order)), groupKeys_(std::move(groupKeys)) {}

    [[nodiscard]] std::size_t Count() const noexcept { return order_.size(); }
    // place: from 0, in the order of the table.
    [[nodiscard]] ColorView At(std::size_t place) const {
        const StoredColor& color = store_.At(order_[place]);
        return {color, groupKeys_[color.group]};
    }

private:
    ColorStore store_;
    std::vector<ColorId> order_;
    std::vector<std::string> groupKeys_;
};
