#pragma once

#include "library/LibraryNode.h"

// Follows the changes of the library tree, so that a tree control can mirror them.
class LibraryTreeObserver {
public:
    virtual ~LibraryTreeObserver() = default;

    // Behind the sibling with a key; empty: as the first of them.
    virtual void NodeAdded(const LibraryNode& node, const std::string& previousKey) = 0;
    virtual void NodeRemoved(const std::string& key) = 0; // with everything below it
    virtual void NodeTextChanged(const std::string& key, const std::string& text) = 0;
    virtual void NodeExpanded(const std::string& key) = 0;
    virtual void NodeSelected(const std::string& key) = 0; // empty: no node is selected
};
