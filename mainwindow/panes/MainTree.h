#pragma once

#include "mainwindow/TreePane.h"
#include "mainwindow/panes/ColorStrip.h"
#include "platform/controls/TreeView.h"

class Form;

// tvColor on frmMain.
class MainTree : public TreePane {
public:
    MainTree(TreeView& control, const Form& form) : control_(control), form_(form) {}

    void Attach(TreeEvents& events);

    void NodeAdded(const LibraryNode& node, const std::string& previousKey) override;
    void NodeRemoved(const std::string& key) override;
    void NodeTextChanged(const std::string& key, const std::string& text) override;
    void NodeExpanded(const std::string& key) override;
    void NodeSelected(const std::string& key) override;
    void EditNodeLabel(const std::string& key) override;
    void FinishLabelEdit() override;
    void ShowNodeTips(const NodeTips* tips) override;

private:
    [[nodiscard]] ControlTip TipWithColors(NodeTip tip);

    TreeView& control_;
    const Form& form_;
    ColorStrip strip_;
};
