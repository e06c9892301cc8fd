#pragma once

#include "library/ColorTable.h"
#include "library/LibraryTree.h"

// A part of a step: turning it round takes it back, turning it round again does it again.
class LibraryChange {
public:
    LibraryChange() = default;
    virtual ~LibraryChange() = default;
    LibraryChange(const LibraryChange&) = delete;
    LibraryChange& operator=(const LibraryChange&) = delete;

    virtual void TurnRound(LibraryTree& tree, ColorTable& colors) = 0;
};
