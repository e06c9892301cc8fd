#pragma once

#include "library/ColorLibrary.h"
#include "library/LibraryHost.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/MainView.h"

#include <optional>
#include <string>

// Tree, list and editor together: how a selection in one is carried into the others, and how the
// editor's colour gets into the library.
class LibraryPanes : public LibraryHost {
public:
    LibraryPanes(ColorLibrary& library, ColorList& list, ColorEditor& editor)
        : library_(library), list_(list), editor_(editor) {}

    ColorValueArray ActiveColorValues() override { return editor_.Values(); }
    void ShowColorNodes(const std::optional<std::string>& groupKey,
                        const std::optional<std::string>& selectKey) override;
    std::string SelectedColorKey() override { return list_.SelectedKey(); }

    // The list shows the group of the tree's selection, or nothing; never asks for anything.
    void ShowSelectedGroup();

    // Loads the list's selected colour into the editor; nothing without one.
    void ShowColorPreview();

    // Writes the editor into the list's selected colour; nothing without one.
    void UpdateFromColorPreview();

    void NodeClicked(const std::string& key);
    void NodeLabelEdited(const std::string& key, const std::string& text);
    void RowClicked(int row);
    void RowLabelEdited(int row, const std::string& text);

private:
    void SelectRememberedColor(const std::string& groupKey);

    ColorLibrary& library_;
    ColorList& list_;
    ColorEditor& editor_;
};
