#pragma once

#include "library/LibraryNode.h"
#include "library/LibraryView.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// A node that has left the tree, with its groups.
struct RemovedNode {
    LibraryNode node;
    NodeRef ref{};
    std::vector<LibraryNode> groups{}; // in order
    std::size_t place = 0;             // among its siblings, from 0
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
