#pragma once

#include "library/ByLibrary.h"
#include "library/ColorLibrary.h"

#include <cstdint>
#include <string>

// A state of a library: another one after every change of what its file is made of.
struct LibraryState {
    std::uint64_t nodes = 0;  // revision of the latest change of its names and groups
    std::uint64_t colors = 0; // and of its colors
    bool operator==(const LibraryState&) const = default;
};

// Knows which open libraries may differ from their files.
class SavedStates {
public:
    explicit SavedStates(const ColorLibrary& library) : library_(library) {}

    // The library is as its file from now on.
    void Saved(const std::string& mainKey);
    // It has no file that is as it is.
    void Forget(const std::string& mainKey);

    [[nodiscard]] LibraryState StateOf(const std::string& mainKey) const;

    // False may be said of one that has been changed and changed back.
    [[nodiscard]] bool IsAsSaved(const std::string& mainKey) const;

private:
    const ColorLibrary& library_;
    ByLibrary<LibraryState> saved_;
};
