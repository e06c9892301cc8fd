#include "library/ColorLibrary.h"

#include "library/LibraryKeys.h"

std::string ColorLibrary::NewMainNode(const std::string& name) {
    std::string key = tree_.LowestFreeMainKey();
    tree_.AddMainNode(key, name);
    tree_.Select(key);
    tree_.Expand(key);
    return key;
}

// Count-based on purpose: the number is not checked against the keys that exist.
std::string ColorLibrary::NextGroupKey(const std::string& mainKey) const {
    return LibraryKeys::OfGroup(mainKey, tree_.At(mainKey).children.size() + 1);
}

bool ColorLibrary::AreNextGroupNumbersFree(const std::string& mainKey, std::size_t count) const {
    const std::size_t last = tree_.At(mainKey).children.size();
    for (std::size_t number = last + 1; number <= last + count; ++number)
        if (tree_.Find(LibraryKeys::OfGroup(mainKey, number)) != nullptr)
            return false;
    return true;
}

void ColorLibrary::RemoveMainNode(const std::string& mainKey) {
    if (onLibraryLeaving)
        onLibraryLeaving(mainKey);
    colors_.EraseGroups(GetGroupInMainnode(mainKey));
    tree_.Remove(mainKey);
}

std::string ColorLibrary::NewGroupNode(const std::string& mainKey, const std::string& name) {
    std::string key = NextGroupKey(mainKey);
    tree_.AddGroup(mainKey, key, name);
    return key;
}

std::string ColorLibrary::NewColorNode(const std::string& groupKey, const std::string& name,
                                       const ColorValueArray& values) {
    ColorRecord color;
    color.name = name;
    color.values = values;
    return AppendColors(groupKey, {color});
}

// Numbers only grow while colors are added, so that none below the last one becomes free.
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
    while (tree_.IsGroup(key))
        key = tree_.At(key).parent;
    return key;
}

std::string ColorLibrary::SelectedGroup() const {
    const LibraryNode* node = tree_.Find(tree_.Selected());
    if (!node)
        return {};
    if (node->kind == NodeKind::Group)
        return node->key;
    return node->children.empty() ? std::string() : node->children.front();
}

std::string ColorLibrary::FreeColorKey(const std::string& groupKey, int& number, int count) const {
    const auto key = [&] {
        return LibraryKeys::OfColor(groupKey, static_cast<std::uint32_t>(number));
    };
    while (number < count && GetColornodeIndex(key()) != 0)
        ++number;
    return key();
}
