#include "mainwindow/LibraryPanes.h"

#include "common/InfoTextNumber.h"
#include "mainwindow/HistoryStep.h"
#include "resources/controls.h"

void LibraryPanes::ShowColorNodes(const std::optional<std::string>& groupKey,
                                  const std::optional<std::string>& selectKey) {
    const std::string& selectedNode = library_.Tree().Selected();
    if (!groupKey && selectedNode.empty()) {
        list_.Clear();
        return;
    }
    const std::string firstGroup = library_.SelectedGroup();
    // A main node without groups is used as it is; it has no colors.
    const std::string shown =
        groupKey ? *groupKey : (firstGroup.empty() ? selectedNode : firstGroup);
    list_.Fill(shown);
    if (list_.RowCount() < 1)
        return;
    if (selectKey)
        library_.Tree().RememberColor(shown, *selectKey);
    SelectRememberedColor(shown);
    list_.ShowSelected();
    ShowColorPreview();
}

// The first color, or the one that was last selected in the group when it is still there.
void LibraryPanes::SelectRememberedColor(const std::string& groupKey) {
    const LibraryNode* group = library_.Tree().Find(groupKey);
    const std::optional<int> row = group ? list_.RowOfKey(group->lastColor) : std::nullopt;
    list_.Select(row.value_or(0));
}

LibraryView LibraryPanes::View() const {
    const LibraryTree& tree = library_.Tree();
    return {.node = tree.Selected().empty() ? NodeRef{} : tree.RefOf(tree.Selected()),
            .color = list_.SelectedColor(),
            .firstRow = list_.FirstRowInSight()};
}

void LibraryPanes::Show(const LibraryView& view) {
    const std::string key = library_.Tree().KeyOf(view.node);
    if (!key.empty() && key != library_.Tree().Selected())
        library_.Tree().Select(key);
    ShowColorNodes();
    if (list_.SelectColor(view.color)) {
        list_.ShowSelected();
        list_.ShowFromRow(view.firstRow);
        ShowColorPreview();
    }
}

bool LibraryPanes::ShowColor(ColorId color) {
    const int index = library_.Colors().IndexOfId(color);
    if (index == 0)
        return false;
    const std::string group = library_.Colors().ViewAt(index).groupKey;
    if (group != library_.Tree().Selected())
        library_.Tree().Select(group);
    ShowColorNodes();
    list_.SelectColor(color);
    list_.ShowSelected();
    ShowColorPreview();
    RememberActiveColorNode();
    return true;
}

void LibraryPanes::ShowColorPreview() {
    const int index = library_.GetColornodeIndex(list_.SelectedKey());
    if (index > 0)
        editor_.ShowColor(library_.Colors().At(index));
}

void LibraryPanes::UpdateFromColorPreview() {
    const int index = library_.GetColornodeIndex(list_.SelectedKey());
    if (index == 0)
        return;
    const ColorValueArray values = editor_.Values();
    const ColorRecord color = library_.Colors().At(index);
    library_.Colors().SetName(index, editor_.Name());
    library_.Colors().SetValues(index, values);
    // A refresh in place: the group may remember another color than the one that is selected.
    ShowColorNodes(color.groupKey, color.key);
}

void LibraryPanes::EditSelectedNode() {
    if (!library_.Tree().Selected().empty())
        tree_.EditNodeLabel(library_.Tree().Selected());
}

void LibraryPanes::FinishLabelEdit() {
    tree_.FinishLabelEdit();
    list_.FinishEdit();
}

// The rows of another group end an edit in the list; what stands in the box is meant.
void LibraryPanes::NodeClicked(const std::string& key) {
    FinishLabelEdit();
    library_.Tree().Select(key);
    ShowColorNodes();
}

void LibraryPanes::NodeLabelEdited(const std::string& key, const std::string& text) {
    if (!library_.Tree().Find(key))
        return;
    const HistoryStep step(library_.History(), *this, {.command = IDM_mnuColorRenameNode});
    library_.Tree().SetText(key, text);
}

void LibraryPanes::RowClicked(int row) {
    list_.SelectedByUser(row);
    ShowColorPreview();
    RememberActiveColorNode();
}

void LibraryPanes::RememberActiveColorNode() {
    const std::string group = library_.SelectedGroup();
    const std::string color = list_.SelectedKey();
    if (!group.empty() && !color.empty())
        library_.Tree().RememberColor(group, color);
}

void LibraryPanes::RowEditRequested() {
    if (MayEditRow())
        list_.EditSelected();
}

bool LibraryPanes::MayEditRow() const {
    return !activity_.operationRuns && activity_.drag == DragMode::None;
}

// Any text is accepted as typed, also an empty one.
void LibraryPanes::RowLabelEdited(int row, const std::string& text) {
    const int index = library_.GetColornodeIndex(list_.KeyOfRow(row));
    if (index == 0)
        return;
    const HistoryStep step(library_.History(), *this, {.textNumber = InfoTextNumber::RenameColor});
    library_.Colors().SetNames(index, text);
    if (list_.SelectedRow() == row && editor_.IsNameOfLibrary())
        editor_.Rename(text);
}

void LibraryPanes::ColumnClicked(int column) {
    FinishLabelEdit(); // the header leaves the focus where it is
    list_.SortByColumn(column);
}
