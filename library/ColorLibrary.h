#pragma once

#include "library/ColorTable.h"
#include "library/LibraryHistory.h"
#include "library/LibraryTree.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// The color library: main nodes (one for each open library file), groups inside a main node, and
// colors inside a group, with the operations that make and find them.
class ColorLibrary {
public:
    ColorLibrary() = default;
    ColorLibrary(const ColorLibrary&) = delete;
    ColorLibrary& operator=(const ColorLibrary&) = delete;

    [[nodiscard]] LibraryTree& Tree() noexcept { return tree_; }
    [[nodiscard]] const LibraryTree& Tree() const noexcept { return tree_; }
    [[nodiscard]] ColorTable& Colors() noexcept { return colors_; }
    [[nodiscard]] const ColorTable& Colors() const noexcept { return colors_; }

    [[nodiscard]] LibraryHistory& History() noexcept { return history_; }
    [[nodiscard]] const LibraryHistory& History() const noexcept { return history_; }

    // Greater after every change of what the user sees of libraries, groups and colors.
    [[nodiscard]] std::uint64_t Revision() const noexcept {
        return tree_.Revision() + colors_.Revision();
    }

    // Called before a library goes, while all of it is there still.
    std::function<void(const std::string& mainKey)> onLibraryLeaving;

    // Removes a library with everything in it.
    void RemoveMainNode(const std::string& mainKey);

    // Adds a library without a file, with the lowest number that is free, and selects it; gives its
    // key.
    std::string NewMainNode(const std::string& name);

    // Adds a group to a main node; gives its key.  The group's number is its place among its
    // siblings; a number that is taken already makes the tree refuse the key: RuntimeError
    // DuplicateKey, nothing changed.
    std::string NewGroupNode(const std::string& mainKey, const std::string& name);
    [[nodiscard]] bool IsNextGroupNumberFree(const std::string& mainKey) const {
        return AreNextGroupNumbersFree(mainKey, 1);
    }
    // Of so many groups that are made one after the other.
    [[nodiscard]] bool AreNextGroupNumbersFree(const std::string& mainKey, std::size_t count) const;

    // Adds a color to a group, with the lowest number that is free there; gives its key.
    std::string NewColorNode(const std::string& groupKey, const std::string& name,
                             const ColorValueArray& values);

    // Adds new colors with these names and values, as one by one; gives the key of the last one, or
    // nothing.
    std::string AppendColors(const std::string& groupKey, const std::vector<ColorRecord>& colors);

    // Keys of the groups of a main node, in order.
    [[nodiscard]] std::vector<std::string> GetGroupInMainnode(const std::string& mainKey) const;
    [[nodiscard]] int GetColorCountInGroup(const std::string& groupKey) const;
    // Indexes in `ColorValues`, ascending.
    [[nodiscard]] std::vector<int> GetColorIndexInGroup(const std::string& groupKey) const;
    // Index in `ColorValues`; 0 when there is none.
    [[nodiscard]] int GetColornodeIndex(const std::string& colorKey) const;

    // Key of the main node that holds the tree's selection; empty when nothing is selected.
    [[nodiscard]] std::string GetActiveMainnode() const;

    // The selected group, or the first group of the selected main node; empty when there is none.
    [[nodiscard]] std::string SelectedGroup() const;

private:
    [[nodiscard]] std::string NextGroupKey(const std::string& mainKey) const;
    // number: is counted on to the first that is free, but not beyond count.
    [[nodiscard]] std::string FreeColorKey(const std::string& groupKey, int& number,
                                           int count) const;

    LibraryTree tree_;
    ColorTable colors_;
    LibraryHistory history_{tree_, colors_};
};
