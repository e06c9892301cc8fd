#pragma once

#include "library/LibraryNode.h"
#include "library/LibraryTreeObserver.h"

#include <string>
#include <unordered_map>
#include <vector>

// The tree of main nodes and groups, with its selected node.  A tree control mirrors it through the
// observer.
class LibraryTree {
public:
    // At most one observer; null: none.
    void Observe(LibraryTreeObserver* observer) noexcept { observer_ = observer; }

    // Adds a main node, or a group as the last child of an existing node.  Throws RuntimeError
    // DuplicateKey when the key is taken; the tree is unchanged then.
    void AddMainNode(const std::string& key, const std::string& text);
    void AddGroup(const std::string& mainKey, const std::string& key, const std::string& text);

    // Removes a node with everything below it.  When the selected node goes, the selection moves to
    // the next sibling of the removed node, else the previous one, else the parent, else nothing.
    void Remove(const std::string& key);

    // Null when there is no such node.
    [[nodiscard]] const LibraryNode* Find(const std::string& key) const;

    // False when there is no such node.
    [[nodiscard]] bool IsGroup(const std::string& key) const;

    // Throws RuntimeError SubscriptOutOfRange when there is no such node.
    [[nodiscard]] const LibraryNode& At(const std::string& key) const;

    void SetText(const std::string& key, const std::string& text);
    void SetFile(const std::string& mainKey, const std::string& path);
    void SetSource(const std::string& mainKey, const std::string& path);
    void SetUnsaved(const std::string& mainKey); // it has no file from now on
    void RememberColor(const std::string& groupKey, const std::string& colorKey);
    void Expand(const std::string& key);

    // Keys of the main nodes, in order.
    [[nodiscard]] const std::vector<std::string>& MainNodes() const noexcept { return mainNodes_; }

    // Key of the selected node; empty when nothing is selected.
    [[nodiscard]] const std::string& Selected() const noexcept { return selected_; }
    void Select(const std::string& key);

private:
    LibraryNode& Existing(const std::string& key);
    void Insert(const LibraryNode& node, std::vector<std::string>& siblings);
    [[nodiscard]] std::string SelectionWithout(const LibraryNode& node) const;
    [[nodiscard]] const std::vector<std::string>& SiblingsOf(const LibraryNode& node) const;
    [[nodiscard]] bool HoldsSelection(const LibraryNode& node) const;

    std::unordered_map<std::string, LibraryNode> nodes_;
    std::vector<std::string> mainNodes_;
    std::string selected_;
    LibraryId lastId_ = 0;
    LibraryTreeObserver* observer_ = nullptr;
};
