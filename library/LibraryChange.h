#pragma once

#include "library/ColorTable.h"
#include "library/LibraryTree.h"

#include <cstddef>

// A part of a step: turning it round takes it back, turning it round again does it again.
class LibraryChange {
public:
    LibraryChange() = default;
    virtual ~LibraryChange() = default;
    LibraryChange(const LibraryChange&) = delete;
    LibraryChange& operator=(const LibraryChange&) = delete;

    virtual void TurnRound(LibraryTree& tree, ColorTable& colors) = 0;

    // What it keeps of colors that are not in the table, about; the rest is small.
    [[nodiscard]] virtual std::size_t KeptBytes() const { return 0; }
};
