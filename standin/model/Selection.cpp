#include "standin/model/Selection.h"

#include "standin/model/Component.h"

#include <algorithm>

bool Selection::Contains(const SelectedItem& item) const noexcept {
    return std::find(items_.begin(), items_.end(), item) != items_.end();
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
