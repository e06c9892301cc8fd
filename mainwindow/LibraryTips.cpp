#include "mainwindow/LibraryTips.h"

#include "common/ErrorText.h"
#include "common/InfoTextNumber.h"

NodeTip LibraryTips::TipOf(const std::string& key) const {
    NodeTip tip;
    const LibraryNode* node = library_.Tree().Find(key);
    if (node == nullptr)
        return tip;
    if (node->kind == NodeKind::Group)
        AddColorsOf(key, tip);
    for (const std::string& group : node->children)
        AddColorsOf(group, tip);
    tip.text = TextOf(node->text, tip);
    return tip;
}

void LibraryTips::AddColorsOf(const std::string& groupKey, NodeTip& tip) const {
    const ColorTable& colors = library_.Colors();
    for (const ColorId color : colors.IdsOfGroup(groupKey)) {
        if (tip.colors.size() == NodeTip::kMostColors)
            break;
        tip.colors.push_back(colors.ViewAt(colors.IndexOfId(color)).color.values);
        --tip.more;
    }
    tip.more += colors.CountOfGroup(groupKey);
}

std::string LibraryTips::TextOf(const std::string& name, const NodeTip& tip) const {
    const int count = static_cast<int>(tip.colors.size()) + tip.more;
    const std::string text =
        count == 1 ? texts_.GetInfoTextOr(InfoTextNumber::OneColorOfNode, "%1: 1 Farbe")
                   : texts_.GetInfoTextOr(InfoTextNumber::ColorsOfNode, "%1: %2 Farben");
    return WithArguments(text, {name, std::to_string(count)});
}
