#pragma once

#include "library/ColorJournal.h"
#include "library/LibraryChange.h"
#include "library/LibraryView.h"
#include "library/TreeJournal.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

// What can change in the open libraries.  Each change keeps the other side of what is there now.
namespace LibraryChanges {

// Colors that came into groups or left them.
class Colors : public LibraryChange {
public:
    struct Part {
        NodeRef group;
        std::vector<ColorId> ids;      // that are in the table, ascending
        std::vector<RemovedColor> out; // that are not
    };

    explicit Colors(std::vector<Part> parts) : parts_(std::move(parts)) {}

    // One more has been added to the group: false when these are other ones.
    [[nodiscard]] bool TakesOneMore(ColorId id, const NodeRef& group);

    void TurnRound(LibraryTree& tree, ColorTable& colors) override;
    [[nodiscard]] std::size_t KeptBytes() const override;

private:
    std::vector<Part> parts_; // all of them in the table, or none
};

// Other names or values of a color.
class Values : public LibraryChange {
public:
    Values(ColorId color, StoredColor other) : color_(color), other_(std::move(other)) {}

    [[nodiscard]] ColorId Color() const noexcept { return color_; }
    void TurnRound(LibraryTree& tree, ColorTable& colors) override;

private:
    ColorId color_;
    StoredColor other_;
};

// A library or group that was added or removed.
class Node : public LibraryChange {
public:
    explicit Node(NodeRef added) : ref_(std::move(added)) {}
    explicit Node(RemovedNode removed) : ref_(removed.ref), out_(std::move(removed)) {}

    void TurnRound(LibraryTree& tree, ColorTable& colors) override;

private:
    NodeRef ref_;
    std::optional<RemovedNode> out_;
};

class Name : public LibraryChange {
public:
    Name(NodeRef node, std::string other) : node_(std::move(node)), other_(std::move(other)) {}

    void TurnRound(LibraryTree& tree, ColorTable& colors) override;

private:
    NodeRef node_;
    std::string other_;
};

// The file that a library is saved to.  One that it got by a later save stays.
class File : public LibraryChange {
public:
    using Path = std::optional<std::string>;

    File(NodeRef library, Path before, Path after)
        : library_(std::move(library)), other_(std::move(before)), now_(std::move(after)) {}

    void TurnRound(LibraryTree& tree, ColorTable& colors) override;

private:
    NodeRef library_;
    Path other_;
    Path now_;
};

// The color that a group remembers, by what its key has behind the group's; empty: none.
class LastColor : public LibraryChange {
public:
    LastColor(NodeRef group, std::string other)
        : group_(std::move(group)), other_(std::move(other)) {}

    [[nodiscard]] const NodeRef& Group() const noexcept { return group_; }
    void TurnRound(LibraryTree& tree, ColorTable& colors) override;

private:
    NodeRef group_;
    std::string other_;
};

} // namespace LibraryChanges
