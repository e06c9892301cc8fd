#pragma once

#include <vector>

// Is told when something that can be seen has changed: a color, the selection, the active
// document, the color table.
class ModelObserver {
public:
    virtual ~ModelObserver() = default;
    virtual void ModelChanged() noexcept = 0;
};

// Tells the observers.  Observers are not owned and take themselves off before they go.
class ModelEvents {
public:
    void Add(ModelObserver& observer) { observers_.push_back(&observer); }
    void Remove(ModelObserver& observer) { std::erase(observers_, &observer); }

    void Changed() const noexcept {
        for (ModelObserver* observer : observers_)
            observer->ModelChanged();
    }

private:
    std::vector<ModelObserver*> observers_;
};
