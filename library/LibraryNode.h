#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

enum class NodeKind { Library, Group };

// Names an open library for good; a key is given again when its library has been closed.
using LibraryId = std::uint32_t;

// A node of the tree: a main node (an open library) or a group.  Texts are UTF-8.
struct LibraryNode {
    NodeKind kind = NodeKind::Library;
    std::string key;                   // unique in the tree
    std::string text;                  // the name that the user sees
    std::string parent;                // key of the parent; empty for a main node
    std::vector<std::string> children; // keys, in order
    bool expanded = false;             // shows its first child as soon as it has one

    LibraryId id = 0;                 // of a library
    std::shared_ptr<const void> life; // of one that is open, or can come back by undo
    std::optional<std::string> file;  // path of a library's file; nothing: it was never saved
    std::string source;               // path of what it was read from or written to last
    std::string lastColor;            // key of a group's color that was selected last

    std::uint64_t revision = 0; // greater after every change of its name and its groups
};
