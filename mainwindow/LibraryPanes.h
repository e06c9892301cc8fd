#pragma once

#include "library/ColorLibrary.h"
#include "mainwindow/MainActivity.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/ListPane.h"
#include "mainwindow/TreePane.h"
#include "mainwindow/ViewedLibraries.h"

#include <optional>
#include <string>

// Tree, list and editor together: how a selection in one is carried into the others, and how the
// editor's color gets into the library.
class LibraryPanes : public ViewedLibraries, public TreeEvents, public ListEvents {
public:
    struct Parts {
        ColorLibrary& library;
        TreePane& tree;
        ColorList& list;
        ColorEditor& editor;
        const MainActivity& activity;
    };

    explicit LibraryPanes(const Parts& parts)
        : library_(parts.library), tree_(parts.tree), list_(parts.list), editor_(parts.editor),
          activity_(parts.activity) {}

    // Refills the list with a group's colors (of the tree's selection when no group is named) and
    // selects a color when one is named, else the one that was last selected there.  Nothing is
    // listed without a selection.
    void ShowColorNodes(const std::optional<std::string>& groupKey = {},
                        const std::optional<std::string>& selectKey = {});

    // What the user sees now, and the same shown again as far as it is still there.
    [[nodiscard]] LibraryView View() const override;
    void Show(const LibraryView& view);

    // Selects a color with its group, as clicks would; false: it is not there any more.
    bool ShowColor(ColorId color);

    // Loads the list's selected color into the editor; nothing without one.
    void ShowColorPreview();

    // Writes the editor into the list's selected color; nothing without one.
    void UpdateFromColorPreview();

    void EditSelectedNode(); // its label; nothing without one
    // An open edit of a label, in the tree or in the list, ends and reports its text.
    void FinishLabelEdit();

    void NodeClicked(const std::string& key) override;
    bool MayEditNode() const override { return !activity_.operationRuns; }
    void NodeLabelEdited(const std::string& key, const std::string& text) override;

    void RowClicked(int row) override;
    void RowEditRequested() override;
    bool MayEditRow() const override;
    void RowLabelEdited(int row, const std::string& text) override;
    void ColumnClicked(int column) override;

private:
    void SelectRememberedColor(const std::string& groupKey);
    void RememberActiveColorNode();

    ColorLibrary& library_;
    TreePane& tree_;
    ColorList& list_;
    ColorEditor& editor_;
    const MainActivity& activity_;
};
