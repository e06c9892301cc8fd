#pragma once

#include "library/LibraryNode.h"

// The pictures of tree nodes and list items, by their names in the image lists.
namespace NodeImages {

inline constexpr const char* Library = "Colfile";
inline constexpr const char* Group = "Palette";
inline constexpr const char* Color = "Colcubes";

[[nodiscard]] constexpr const char* Of(NodeKind kind) noexcept {
    return kind == NodeKind::Group ? Group : Library;
}

} // namespace NodeImages
