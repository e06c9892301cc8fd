#include "mainwindow/panes/MainTree.h"

#include "mainwindow/panes/NodeImages.h"
#include "platform/Form.h"

#include <utility>

void MainTree::Attach(TreeEvents& events) {
    control_.onClick = [&events](const std::string& key) { events.NodeClicked(key); };
    control_.mayEdit = [&events] { return events.MayEditNode(); };
    control_.onLabelEdited = [&events](const std::string& key, const std::string& text) {
        events.NodeLabelEdited(key, text);
    };
}

void MainTree::NodeAdded(const LibraryNode& node, const std::string& previousKey) {
    control_.AddNode({.key = node.key,
                      .parent = node.parent,
                      .previous = previousKey,
                      .text = node.text,
                      .image = NodeImages::Of(node.kind)});
}

void MainTree::NodeRemoved(const std::string& key) {
    control_.RemoveNode(key);
}

void MainTree::NodeTextChanged(const std::string& key, const std::string& text) {
    control_.SetNodeText(key, text);
}

void MainTree::NodeExpanded(const std::string& key) {
    control_.ExpandNode(key);
}

void MainTree::NodeSelected(const std::string& key) {
    control_.SelectNode(key);
}

void MainTree::EditNodeLabel(const std::string& key) {
    control_.EditLabel(key);
}

void MainTree::FinishLabelEdit() {
    control_.FinishEdit();
}

void MainTree::ShowNodeTips(const NodeTips* tips) {
    if (tips == nullptr)
        control_.tipOf = {};
    else
        control_.tipOf = [this, tips](const std::string& key) {
            return TipWithColors(tips->TipOf(key));
        };
}

ControlTip MainTree::TipWithColors(NodeTip tip) {
    ControlTip shown{.text = tip.text,
                     .picture = ColorStrip::SizeOf(tip, form_.Scale(), form_.Font())};
    if (!tip.colors.empty())
        shown.paint = [this, tip = std::move(tip)](HDC device, POINT at) {
            strip_.Paint(device, at, tip, form_.Scale(), form_.Font());
        };
    return shown;
}
