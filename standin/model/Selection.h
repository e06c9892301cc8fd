#pragma once

#include "standin/model/Entity.h"

#include <cstddef>
#include <vector>

class Component;

// One selected object and the component through which it was picked (none in a part).
struct SelectedItem {
    EntityPtr entity;
    std::shared_ptr<Component> component;

    bool operator==(const SelectedItem&) const = default;
};

// What a user changed in a view of the selection.
struct SelectionChange {
    std::vector<SelectedItem> added;
    std::vector<SelectedItem> removed;
};
[[nodiscard]] SelectionChange ChangeBetween(const std::vector<SelectedItem>& before,
                                            const std::vector<SelectedItem>& after);

// What is selected in one document, in the order of selecting.
class Selection {
public:
    [[nodiscard]] const std::vector<SelectedItem>& Items() const noexcept { return items_; }
    [[nodiscard]] bool Contains(const SelectedItem& item) const noexcept;

    // The first item with this entity, whatever its component; null when there is none.
    [[nodiscard]] const SelectedItem* Find(const Entity& entity) const noexcept;

    // An item that is selected already keeps its place.
    void Add(const SelectedItem& item);
    void Remove(const SelectedItem& item);
    void Replace(const SelectedItem& item) { items_ = {item}; }
    void Clear() noexcept { items_.clear(); }

private:
    std::vector<SelectedItem> items_;
};
