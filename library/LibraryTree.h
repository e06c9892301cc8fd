#pragma once

#include "library/TreeJournal.h"
#include "library/LibraryNode.h"
#include "library/LibraryTreeObserver.h"
#include "library/LibraryView.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

// The tree of main nodes and groups, with its selected node.  A tree control mirrors it through the
// observer.
class LibraryTree {
public:
    // At most one observer; null: none.
    void Observe(LibraryTreeObserver* observer) noexcept { observer_ = observer; }
    // At most one journal, which hears of every change but selecting and expanding; null: none.
    void SetJournal(TreeJournal* journal) noexcept { journal_ = journal; }

    // Adds a main node, or a group as the last child of an existing node.  Throws RuntimeError
    // DuplicateKey when the key is taken; the tree is unchanged then.
    void AddMainNode(const std::string& key, const std::string& text);
    void AddGroup(const std::string& mainKey, const std::string& key, const std::string& text);

    // Removes a node with everything below it.  When the selected node goes, the selection moves to
    // the next sibling of the removed node, else the previous one, else the parent, else nothing.
    void Remove(const std::string& key);

    // Takes a node out as Remove does, and puts one back in its place among its siblings; a library
    // whose key has been given again meanwhile gets another one, together with all in it.  Neither
    // is told to the journal.
    [[nodiscard]] RemovedNode TakeOut(const std::string& key);
    void PutBack(RemovedNode removed, const std::string& parentKey);

    [[nodiscard]] NodeRef RefOf(const std::string& key) const; // of a node that is there
    [[nodiscard]] std::string KeyOf(const NodeRef& ref) const; // empty: it is not there now

    // The lowest key that no library has.
    [[nodiscard]] std::string LowestFreeMainKey() const;

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

    // Greater after every change of a name or of what is in a library.
    [[nodiscard]] std::uint64_t Revision() const noexcept { return revision_; }

    // Key of the selected node; empty when nothing is selected.
    [[nodiscard]] const std::string& Selected() const noexcept { return selected_; }
    void Select(const std::string& key);

private:
    LibraryNode& Existing(const std::string& key);
    void NoteChange(LibraryNode& node) noexcept { node.revision = ++revision_; }
    void Insert(const LibraryNode& node, std::vector<std::string>& siblings, std::size_t place);
    void ChangeFile(const std::string& mainKey, std::optional<std::string> path);
    void Add(const LibraryNode& node, std::vector<std::string>& siblings);
    [[nodiscard]] std::string SelectionWithout(const LibraryNode& node) const;
    [[nodiscard]] const std::vector<std::string>& SiblingsOf(const LibraryNode& node) const;
    [[nodiscard]] bool HoldsSelection(const LibraryNode& node) const;

    std::unordered_map<std::string, LibraryNode> nodes_;
    std::vector<std::string> mainNodes_;
    std::string selected_;
    LibraryId lastId_ = 0;
    std::uint64_t revision_ = 0; // of the last change
    LibraryTreeObserver* observer_ = nullptr;
    TreeJournal* journal_ = nullptr;
};
