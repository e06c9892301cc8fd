#pragma once

#include <string>
#include <string_view>
#include <vector>

// The pictures of tree nodes and list items.
namespace NodeImage {
inline constexpr const char* MainNode = "Colfile";
inline constexpr const char* Group = "Palette";
inline constexpr const char* Color = "Colcubes";
} // namespace NodeImage

// The Tag of a library that was made by the user and never saved.
inline constexpr const char* kUnsavedTag = "unsaved";

// A node of the tree: a main node (a library) or a group.  Texts are UTF-8.
struct LibraryNode {
    std::string key;    // unique in the tree
    std::string text;   // the name that the user sees
    std::string image;  // NodeImage
    std::string tag;    // main node: path of its file or "unsaved"; group: key of its last colour
    std::string parent; // key of the parent; empty for a main node
    std::vector<std::string> children; // keys, in order
    bool expanded = false;             // shows its first child as soon as it has one
};

// The only test of a node's kind: a key that contains "G" belongs to a group.
[[nodiscard]] inline bool IsGroupKey(std::string_view key) {
    return key.find('G') != std::string_view::npos;
}
