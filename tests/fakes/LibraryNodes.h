#pragma once

#include "library/LibraryNode.h"

#include <string>

// Nodes as a tree control is told of them.
[[nodiscard]] inline LibraryNode NodeOfLibrary(const std::string& key, const std::string& text) {
    LibraryNode node;
    node.kind = NodeKind::Library;
    node.key = key;
    node.text = text;
    return node;
}

[[nodiscard]] inline LibraryNode NodeOfGroup(const std::string& key, const std::string& text,
                                             const std::string& parent) {
    LibraryNode node;
    node.kind = NodeKind::Group;
    node.key = key;
    node.text = text;
    node.parent = parent;
    return node;
}
