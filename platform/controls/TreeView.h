#pragma once

#include "platform/controls/Control.h"
#include "platform/controls/LabelEdit.h"
#include "platform/IconList.h"

#include <functional>
#include <string>
#include <unordered_map>

// A tree of named nodes.  It speaks the keys of its nodes; what the program changes is not reported
// back, what the user does is.
class TreeView : public Control {
public:
    // The image list is kept by the caller and fitted by this tree.
    TreeView(ControlHost& host, const ControlPlace& place, IconList& images);

    struct Node {
        std::string key;
        std::string parent;   // key; empty: none
        std::string previous; // key of the sibling before it; empty: it is the first
        std::string text;
        std::string image;
    };
    void AddNode(const Node& added);
    void RemoveNode(const std::string& key);
    void SetNodeText(const std::string& key, const std::string& text);
    void ExpandNode(const std::string& key);
    void SelectNode(const std::string& key); // empty: none
    void EditLabel(const std::string& key);
    void FinishEdit(); // an open one ends, with its text
    [[nodiscard]] std::string SelectedKey() const;

    // For a drag: points are pixels of the screen.
    [[nodiscard]] std::string KeyAtLine(POINT screen) const; // empty: no node's line is there
    [[nodiscard]] int LineHeight() const;                    // pixels
    void MarkDropTarget(const std::string& key);             // empty: none
    void ScrollLine(bool down);

    std::function<void(const std::string& key)> onClick; // a node was selected or clicked again
    std::function<void(const std::string& key, const std::string& text)> onLabelEdited;
    std::function<void()> onEditRequested; // F2
    std::function<bool()> mayEdit;
    std::function<void(POINT screen)> onContextMenu; // the node under it is selected

    // What the tip of a node shows; while there is none, only its name where that is cut off.
    std::function<ControlTip(const std::string& key)> tipOf;

    [[nodiscard]] std::string TipText() const override;
    [[nodiscard]] ControlTip Tip() const override;
    MessageResult OnNotify(NMHDR& header) override;
    void ApplyScale() override;

protected:
    MessageResult OnMessage(const WindowMessage& message) override;

private:
    void PauseDrawing(HTREEITEM parent);
    void Fold(HTREEITEM parent);
    void ResumeDrawing();
    [[nodiscard]] HTREEITEM Find(const std::string& key) const; // null: there is none
    [[nodiscard]] std::string KeyOf(HTREEITEM item) const;      // empty: there is none
    [[nodiscard]] HTREEITEM Selected() const;
    [[nodiscard]] HTREEITEM ItemAt(POINT point) const; // its picture or name
    [[nodiscard]] HTREEITEM LineAt(POINT point) const; // and what is beside them
    [[nodiscard]] RECT TextPlaceOf(HTREEITEM item) const;
    [[nodiscard]] std::string TextOf(HTREEITEM item) const;
    void ApplyColors();
    void Forget(HTREEITEM item);
    void BeginLabelEdit(HTREEITEM item);
    void EndLabelEdit(const NMTVDISPINFOW& info);
    LRESULT TakeFocus(const WindowMessage& message);
    void OpenContextMenu(const WindowMessage& message);

    IconList& images_;
    std::unordered_map<std::string, HTREEITEM> items_; // an item's lParam points at its key here
    bool silent_ = false;                              // the program itself changes the selection
    LabelEdit label_;
    bool drawingPaused_ = false;
    bool inserting_ = false;
    HTREEITEM folded_ = nullptr; // while drawing is paused
};
