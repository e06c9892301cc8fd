#pragma once

#include "library/LibraryTreeObserver.h"
#include "mainwindow/NodeTip.h"

#include <string>

// tvColor: mirrors the library tree.  Texts are UTF-8.
class TreePane : public LibraryTreeObserver {
public:
    virtual void EditNodeLabel(const std::string& key) = 0;
    // An open edit of a label ends and reports its text.
    virtual void FinishLabelEdit() = 0;
    // The tip of a node shows its first colors; null: only its name, where that is cut off.  The
    // tips are kept by the caller.
    virtual void ShowNodeTips(const NodeTips* tips) = 0;
};

// What the user did in the tree.
class TreeEvents {
public:
    virtual ~TreeEvents() = default;

    virtual void NodeClicked(const std::string& key) = 0;
    [[nodiscard]] virtual bool MayEditNode() const = 0;
    virtual void NodeLabelEdited(const std::string& key, const std::string& text) = 0;
};
