#include "standin/model/Selection.h"

#include "standin/model/Component.h"

#include <algorithm>
#include <iterator>

namespace {

bool Has(const std::vector<SelectedItem>& items, const SelectedItem& item) noexcept {
    return std::find(items.begin(), items.end(), item) != items.end();
}

// Those of the items that are not among the others.
std::vector<SelectedItem> Without(const std::vector<SelectedItem>& items,
                                  const std::vector<SelectedItem>& others) {
    std::vector<SelectedItem> left;
    std::copy_if(items.begin(), items.end(), std::back_inserter(left),
                 [&](const SelectedItem& item) { return !Has(others, item); });
    return left;
}

} // namespace

SelectionChange ChangeBetween(const std::vector<SelectedItem>& before,
                              const std::vector<SelectedItem>& after) {
    return {Without(after, before), Without(before, after)};
}

bool Selection::Contains(const SelectedItem& item) const noexcept {
    return Has(items_, item);
}

const SelectedItem* Selection::Find(const Entity& entity) const noexcept {
    const auto found = std::find_if(items_.begin(), items_.end(), [&](const SelectedItem& item) {
        return item.entity.get() == &entity;
    });
    return found == items_.end() ? nullptr : &*found;
}

void Selection::Add(const SelectedItem& item) {
    if (!Contains(item))
        items_.push_back(item);
}

void Selection::Remove(const SelectedItem& item) {
    std::erase(items_, item);
}
