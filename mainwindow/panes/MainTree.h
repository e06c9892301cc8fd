#pragma once

#include "mainwindow/TreePane.h"
#include "platform/controls/TreeView.h"

// tvColor on frmMain.
class MainTree : public TreePane {
public:
    explicit MainTree(TreeView& control) : control_(control) {}

    void Attach(TreeEvents& events);

    void NodeAdded(const LibraryNode& node, const std::string& previousKey) override;
    void NodeRemoved(const std::string& key) override;
    void NodeTextChanged(const std::string& key, const std::string& text) override;
    void NodeExpanded(const std::string& key) override;
    void NodeSelected(const std::string& key) override;
    void EditNodeLabel(const std::string& key) override;
    void FinishLabelEdit() override;

private:
    TreeView& control_;
};
