#pragma once

#include <string>

// What a dragged color will be at the group that it is dropped on.
enum class DragMode { None, Move, Copy };

// Keys that are held down.
struct HeldKeys {
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

enum class TreeEdge { None, Top, Bottom };

// Where the pointer is while a color is dragged.
struct DragPoint {
    float left = 0; // in the form
    float top = 0;
    bool isOverList = false;
    std::string node;               // key of the tree's node under it; empty: none
    TreeEdge edge = TreeEdge::None; // of the tree's area, when the pointer is near to it
};

class DragPane {
public:
    virtual ~DragPane() = default;
    // lblDrag, which is invisible, stands at the point, and the pointer has the picture of the
    // mode; None: that of a place where nothing can be dropped.
    virtual void ShowDrag(float left, float top, DragMode picture) = 0;
    virtual void MarkDropNode(const std::string& key) = 0; // empty: none
    virtual void ScrollTree(TreeEdge towards) = 0;         // by one line
    // Does not report the end back.
    virtual void EndDrag() = 0;
};

// What the user did with the mouse to drag the list's selected row.
class DragEvents {
public:
    virtual ~DragEvents() = default;

    virtual void ListPressed() = 0; // a mouse button, beside the rows too
    // The selected row is dragged with the left button.  False: refused; else moves and ticks (ten
    // a second) follow until it is dropped or given up.
    [[nodiscard]] virtual bool DragStarted(const HeldKeys& keys, const DragPoint& at) = 0;
    virtual void DragMoved(const DragPoint& at) = 0;
    virtual void DragTicked(const DragPoint& at) = 0;
    virtual void DragDropped(const DragPoint& at) = 0;
    virtual void DragCancelled() = 0; // Escape, or the mouse was taken away
};
