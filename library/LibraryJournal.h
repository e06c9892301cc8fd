#pragma once

#include "library/ColorStore.h"
#include "library/LibraryNode.h"
#include "library/LibraryView.h"

#include <cstddef>
#include <optional>
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

// A node that has left the tree, with its groups.
struct RemovedNode {
    LibraryNode node;
    NodeRef ref{};
    std::vector<LibraryNode> groups{}; // in order
    std::size_t place = 0;             // among its siblings, from 0
};

// Hears of every change of the color table.
class ColorJournal {
public:
    virtual ~ColorJournal() = default;

    virtual void ColorAdded(ColorId id, const std::string& groupKey) = 0;
    virtual void ColorsRemoved(std::vector<RemovedColors> removed) = 0;
    virtual void ColorChanging(ColorId id, StoredColor before) = 0; // its names or values
};

// Hears of every change of the tree but those of what the user looks at.
class TreeJournal {
public:
    virtual ~TreeJournal() = default;

    virtual void NodeAdded(const LibraryNode& node) = 0; // as the last of its siblings
    virtual void NodeRemoved(RemovedNode removed) = 0;
    virtual void NodeRenamed(const std::string& key, const std::string& before) = 0;
    virtual void FileChanged(const std::string& mainKey,
                             const std::optional<std::string>& before) = 0;
    virtual void ColorRemembered(const std::string& groupKey, const std::string& before) = 0;
};
