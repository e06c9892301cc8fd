#pragma once

#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/ColorTable.h"
#include "library/LibraryHost.h"
#include "library/LibraryTree.h"

#include <optional>
#include <string>
#include <vector>

// The colour library: main nodes (one for each open library file), groups inside a main node, and
// colours inside a group, with the operations that make and find them.  Names that are not passed
// are asked from the user; a name that is passed is used as it is, also when it is empty.
class ColorLibrary {
public:
    ColorLibrary(Prompts& prompts, InfoTexts& texts) : prompts_(prompts), texts_(texts) {}
    ColorLibrary(const ColorLibrary&) = delete;
    ColorLibrary& operator=(const ColorLibrary&) = delete;

    // Must be called before any other operation.
    void SetHost(LibraryHost& host) noexcept { host_ = &host; }

    [[nodiscard]] LibraryTree& Tree() noexcept { return tree_; }
    [[nodiscard]] const LibraryTree& Tree() const noexcept { return tree_; }
    [[nodiscard]] ColorTable& Colors() noexcept { return colors_; }
    [[nodiscard]] const ColorTable& Colors() const noexcept { return colors_; }

    // Adds a library and selects it.  Without a name the user is asked, and goes on to make the
    // first group and its first colour.  False when the user cancelled.
    bool NewMainNode(const std::optional<std::string>& name = {});

    // Adds a group to the main node (of the tree's selection when none is named).  Asks for the
    // group's first colour too.  False when the user cancelled.  The group's number is its place
    // among its siblings; a number that is taken already makes the tree refuse the key:
    // RuntimeError DuplicateKey, nothing changed.
    bool NewGroupNode(const std::optional<std::string>& mainKey = {});

    // Adds a group with a name and makes no colour; gives the group's key.  Throws as above.
    std::string NewGroupNode(const std::string& mainKey, const std::string& name);

    // Appends a colour with these values, else the editor's, to the group (of the tree's selection
    // when none is named) and selects it in the list.  False when the user cancelled or when a
    // library or group had to be made first (which asks for its first colour itself).
    bool NewColorNode(const std::optional<std::string>& groupKey = {},
                      const std::optional<std::string>& name = {},
                      const std::optional<ColorValueArray>& values = {});

    // Appends new colours with these names and values to the group and shows nothing of them; gives
    // the key of the last one, or nothing.
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

    // Stores the list's selected colour as the last one of its group.
    void RememberActiveColorNode();

private:
    [[nodiscard]] std::string LowestFreeMainKey() const;
    // number: is counted on to the first that is free, but not beyond count.
    [[nodiscard]] std::string FreeColorKey(const std::string& groupKey, int& number,
                                           int count) const;
    [[nodiscard]] std::string AskName(std::int32_t textNumber, const std::string& preset);
    std::string SelectMainNodeUpwards();
    bool AskAndAddGroup(const std::string& mainKey);
    bool AddColor(const std::string& groupKey, const std::optional<std::string>& name,
                  const std::optional<ColorValueArray>& values);

    Prompts& prompts_;
    InfoTexts& texts_;
    LibraryHost* host_ = nullptr;
    LibraryTree tree_;
    ColorTable colors_;
};
