#include "library/ColorLibrary.h"

#include "common/InfoTextNumber.h"
#include "common/ProgramNames.h"
#include "common/RuntimeError.h"

namespace {

std::string NumberedMainKey(std::size_t number) {
    return std::to_string(number) + "D";
}

// Count-based on purpose: the number is not checked against the keys that exist.
std::string NextGroupKey(const LibraryNode& mainNode) {
    return mainNode.key + "G" + std::to_string(mainNode.children.size() + 1);
}

} // namespace

bool ColorLibrary::NewMainNode(const std::optional<std::string>& name) {
    const std::size_t count = tree_.MainNodes().size();
    const std::string text =
        name ? *name : AskName(InfoTextNumber::NameOfLibrary, "New Node" + std::to_string(count));
    if (!name && text.empty())
        return false;
    const std::string key = LowestFreeMainKey();
    tree_.AddMainNode(key, text);
    tree_.Select(key);
    tree_.Expand(key);
    if (!name) {
        tree_.SetTag(key, kUnsavedTag);
        host_->ShowColorNodes(key, {}); // empties the list, whatever is cancelled from here on
        NewGroupNode(key);
    }
    return true;
}

bool ColorLibrary::NewGroupNode(const std::optional<std::string>& mainKey) {
    if (mainKey)
        return AskAndAddGroup(*mainKey);
    if (tree_.Selected().empty()) {
        NewMainNode();
        return false;
    }
    const std::string shownGroup = SelectedGroup();
    const std::string mainNode = SelectMainNodeUpwards();
    // The library is selected now, so the list shows what is selected there; where that is what it
    // shows already, list and editor stay as they are, with what was typed there.
    const auto followSelection = [&] {
        if (SelectedGroup() != shownGroup)
            host_->ShowColorNodes({}, {});
    };
    try {
        if (AskAndAddGroup(mainNode))
            return true;
    } catch (const RuntimeError&) {
        followSelection();
        throw;
    }
    followSelection();
    return false;
}

std::string ColorLibrary::NewGroupNode(const std::string& mainKey, const std::string& name) {
    std::string key = NextGroupKey(tree_.At(mainKey));
    tree_.AddGroup(mainKey, key, name);
    return key;
}

bool ColorLibrary::AskAndAddGroup(const std::string& mainKey) {
    const std::size_t number = tree_.At(mainKey).children.size() + 1;
    const std::string name =
        AskName(InfoTextNumber::NameOfGroup, "New Group" + std::to_string(number));
    if (name.empty())
        return false;
    const std::string key = NewGroupNode(mainKey, name);
    // Tree and list agree on what the user just made.
    tree_.Expand(mainKey);
    tree_.Select(key);
    host_->ShowColorNodes(key, {});
    NewColorNode(key);
    return true;
}

bool ColorLibrary::NewColorNode(const std::optional<std::string>& groupKey,
                                const std::optional<std::string>& name,
                                const std::optional<ColorValueArray>& values) {
    if (groupKey)
        return AddColor(*groupKey, name, values);
    if (tree_.Selected().empty()) {
        NewMainNode();
        return false;
    }
    const std::string selected = tree_.Selected();
    const std::string group = SelectedGroup();
    if (group.empty()) {
        NewGroupNode();
        return false;
    }
    if (group != selected)
        tree_.Select(group);
    return AddColor(group, name, values);
}

bool ColorLibrary::AddColor(const std::string& groupKey, const std::optional<std::string>& name,
                            const std::optional<ColorValueArray>& values) {
    const int number = GetColorCountInGroup(groupKey) + 1;
    const std::string text =
        name ? *name : AskName(InfoTextNumber::NameOfColor, "New Color" + std::to_string(number));
    if (!name && text.empty())
        return false;
    int lowest = 1;
    const std::string key = FreeColorKey(groupKey, lowest, number);
    const ColorValueArray shown = values ? *values : host_->ActiveColorValues();
    colors_.Append({text, key, groupKey, true, shown, text});
    host_->ShowColorNodes(groupKey, key);
    return true;
}

// Numbers only grow while colours are added, so that none below the last one becomes free.
std::string ColorLibrary::AppendColors(const std::string& groupKey,
                                       const std::vector<ColorRecord>& colors) {
    std::string key;
    int count = GetColorCountInGroup(groupKey);
    int number = 1;
    for (const ColorRecord& color : colors) {
        key = FreeColorKey(groupKey, number, ++count);
        colors_.Append({color.name, key, groupKey, true, color.values, color.name});
    }
    return key;
}

std::vector<std::string> ColorLibrary::GetGroupInMainnode(const std::string& mainKey) const {
    return tree_.At(mainKey).children;
}

int ColorLibrary::GetColorCountInGroup(const std::string& groupKey) const {
    return colors_.CountOfGroup(groupKey);
}

std::vector<int> ColorLibrary::GetColorIndexInGroup(const std::string& groupKey) const {
    return colors_.IndexesOfGroup(groupKey);
}

int ColorLibrary::GetColornodeIndex(const std::string& colorKey) const {
    return colors_.IndexOfKey(colorKey);
}

std::string ColorLibrary::GetActiveMainnode() const {
    std::string key = tree_.Selected();
    while (IsGroupKey(key))
        key = tree_.At(key).parent;
    return key;
}

std::string ColorLibrary::SelectedGroup() const {
    const LibraryNode* node = tree_.Find(tree_.Selected());
    if (!node)
        return {};
    if (IsGroupKey(node->key))
        return node->key;
    return node->children.empty() ? std::string() : node->children.front();
}

void ColorLibrary::RememberActiveColorNode() {
    const std::string group = SelectedGroup();
    const std::string color = host_->SelectedColorKey();
    if (!group.empty() && !color.empty())
        tree_.SetTag(group, color);
}

std::string ColorLibrary::LowestFreeMainKey() const {
    std::size_t number = 0;
    while (tree_.Find(NumberedMainKey(number)))
        ++number;
    return NumberedMainKey(number);
}

std::string ColorLibrary::FreeColorKey(const std::string& groupKey, int& number, int count) const {
    while (number < count && GetColornodeIndex(groupKey + "E" + std::to_string(number)) != 0)
        ++number;
    return groupKey + "E" + std::to_string(number);
}

std::string ColorLibrary::AskName(std::int32_t textNumber, const std::string& preset) {
    return prompts_.AskText(texts_.GetInfoText(textNumber), ProgramNames::InputBoxTitle, preset);
}

std::string ColorLibrary::SelectMainNodeUpwards() {
    std::string key = tree_.Selected();
    while (IsGroupKey(key)) {
        key = tree_.At(key).parent;
        tree_.Select(key);
    }
    return key;
}
