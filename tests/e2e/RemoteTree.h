#pragma once

#include "tests/e2e/RemoteWindow.h"

#include <vector>
#include <commctrl.h>

// A tree control of another process.
class RemoteTree {
public:
    explicit RemoteTree(RemoteWindow window) : window_(window) {}

    // Texts of the top nodes, and of the nodes right below one of them (from 0).
    [[nodiscard]] std::vector<std::string> Roots() const;
    [[nodiscard]] std::vector<std::string> Children(std::size_t root) const;
    // Texts from the top node down to the selected one, joined by "/", with the number of the top
    // node (from 0) in front: "0/Materials/Metals".  Empty when nothing is selected.
    [[nodiscard]] std::string SelectedPath() const;

    // With the mouse; throws std::runtime_error when there is no such node.
    void ClickRoot(std::size_t root) const;
    void ClickChild(std::size_t root, const std::string& text) const;

    [[nodiscard]] RemoteWindow LabelEdit() const; // without a handle while no label is edited
    // Points of the screen, in the middle of a node's text, which is scrolled into view.
    [[nodiscard]] POINT PointOfRoot(std::size_t root) const;
    [[nodiscard]] POINT PointOfChild(std::size_t root, const std::string& text) const;
    [[nodiscard]] POINT PointBelowTheNodes() const;

    [[nodiscard]] std::string DropTarget() const; // text of the marked node; empty: none
    [[nodiscard]] std::string FirstVisible() const;
    [[nodiscard]] bool IsExpanded(std::size_t root) const;
    void Collapse(std::size_t root) const;

private:
    [[nodiscard]] HTREEITEM RootItem(std::size_t root) const;
    [[nodiscard]] HTREEITEM ChildItem(std::size_t root, const std::string& text) const;
    [[nodiscard]] RECT BoundsOf(HTREEITEM item) const; // of its text
    [[nodiscard]] HTREEITEM Next(WPARAM relation, HTREEITEM item) const;
    [[nodiscard]] std::vector<HTREEITEM> Siblings(HTREEITEM first) const;
    [[nodiscard]] std::vector<HTREEITEM> ChildItems(std::size_t root) const;
    [[nodiscard]] std::vector<std::string> TextsOf(const std::vector<HTREEITEM>& items) const;
    [[nodiscard]] std::string TextOf(HTREEITEM item) const;
    [[nodiscard]] POINT PointOf(HTREEITEM item) const;

    RemoteWindow window_;
};
