#pragma once

#include "library/ColorStore.h"
#include "library/LibraryNode.h"

#include <string>

// A library or a group, whatever key its library has at the moment.
struct NodeRef {
    LibraryId library = 0; // 0: none
    std::string group{};   // what a group's key has behind its library's; empty: the library itself

    bool operator==(const NodeRef&) const = default;
};

// What the user sees of the libraries.
struct LibraryView {
    NodeRef node;      // that is selected in the tree
    ColorId color = 0; // that is selected in the list; 0: none
    int firstRow = 0;  // the first of the list that is in sight

    bool operator==(const LibraryView&) const = default;
};
