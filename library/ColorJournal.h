#pragma once

#include "library/ColorStore.h"

#include <string>
#include <vector>

// A color that has left the table, with what puts it back in its place.
struct RemovedColor {
    ColorId id = 0;
    StoredColor color;
};

// The colors of a group that have left, in the order of the table.
struct RemovedColors {
    std::string groupKey;
    std::vector<RemovedColor> colors;
};

// Hears of every change of the color table.
class ColorJournal {
public:
    virtual ~ColorJournal() = default;

    virtual void ColorAdded(ColorId id, const std::string& groupKey) = 0;
    virtual void ColorsRemoved(std::vector<RemovedColors> removed) = 0;
    virtual void ColorChanging(ColorId id, StoredColor before) = 0; // its names or values
};
