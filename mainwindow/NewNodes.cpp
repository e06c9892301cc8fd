#include "mainwindow/NewNodes.h"

#include "common/InfoTextNumber.h"
#include "common/ProgramNames.h"

bool NewNodes::NewMainNode() {
    const std::size_t count = parts_.library.Tree().MainNodes().size();
    const std::string name =
        AskName(InfoTextNumber::NameOfLibrary, "New Node" + std::to_string(count));
    if (name.empty())
        return false;
    const std::string key = parts_.library.NewMainNode(name);
    parts_.panes.ShowColorNodes(); // empties the list, whatever is cancelled from here on
    AddGroup(key, AskGroupName(key));
    return true;
}

void NewNodes::NewGroupNode() {
    if (parts_.library.Tree().Selected().empty()) {
        NewMainNode();
        return;
    }
    const std::string shownGroup = parts_.library.SelectedGroup();
    const std::string mainNode = SelectMainNodeUpwards();
    const std::string name = AskGroupName(mainNode);
    const bool isRefused = !name.empty() && !parts_.library.IsNextGroupNumberFree(mainNode);
    // The library is selected now, so the list shows what is selected there; where that is what it
    // shows already, list and editor stay as they are, with what was typed there.
    if ((name.empty() || isRefused) && parts_.library.SelectedGroup() != shownGroup)
        parts_.panes.ShowColorNodes();
    AddGroup(mainNode, name);
}

std::string NewNodes::AskGroupName(const std::string& mainKey) {
    const std::size_t number = parts_.library.Tree().At(mainKey).children.size() + 1;
    return AskName(InfoTextNumber::NameOfGroup, "New Group" + std::to_string(number));
}

void NewNodes::AddGroup(const std::string& mainKey, const std::string& name) {
    if (name.empty())
        return;
    const std::string key = parts_.library.NewGroupNode(mainKey, name);
    // Tree and list agree on what the user just made.
    parts_.library.Tree().Expand(mainKey);
    parts_.library.Tree().Select(key);
    parts_.panes.ShowColorNodes(key);
    AskAndAddColor(key);
}

void NewNodes::NewColorNode() {
    if (const std::string group = GroupForColor(); !group.empty())
        AskAndAddColor(group);
}

void NewNodes::NewColorNode(const std::string& name, const ColorValueArray& values) {
    ColorTable& colors = parts_.library.Colors();
    const int before = colors.UpperBound();
    if (const std::string group = GroupForColor(); !group.empty()) {
        AddColor(group, name, values);
    } else if (colors.UpperBound() > before) {
        const std::string made = colors.At(colors.UpperBound()).key;
        colors.SetValues(colors.UpperBound(), values);
        parts_.panes.ShowColorNodes({}, made);
    }
}

std::string NewNodes::GroupForColor() {
    LibraryTree& tree = parts_.library.Tree();
    if (tree.Selected().empty()) {
        NewMainNode();
        return {};
    }
    std::string group = parts_.library.SelectedGroup();
    if (group.empty())
        NewGroupNode();
    else if (group != tree.Selected())
        tree.Select(group);
    return group;
}

void NewNodes::AskAndAddColor(const std::string& groupKey) {
    const int number = parts_.library.GetColorCountInGroup(groupKey) + 1;
    const std::string name =
        AskName(InfoTextNumber::NameOfColor, "New Color" + std::to_string(number));
    if (!name.empty())
        AddColor(groupKey, name, parts_.editor.Values());
}

void NewNodes::AddColor(const std::string& groupKey, const std::string& name,
                        const ColorValueArray& values) {
    const std::string key = parts_.library.NewColorNode(groupKey, name, values);
    parts_.panes.ShowColorNodes(groupKey, key);
}

std::string NewNodes::AskName(std::int32_t textNumber, const std::string& preset) {
    return parts_.prompts.AskText(parts_.texts.GetInfoText(textNumber), ProgramNames::InputBoxTitle,
                                  preset);
}

std::string NewNodes::SelectMainNodeUpwards() {
    LibraryTree& tree = parts_.library.Tree();
    std::string key = tree.Selected();
    while (tree.IsGroup(key)) {
        key = tree.At(key).parent;
        tree.Select(key);
    }
    return key;
}
