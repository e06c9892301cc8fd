#pragma once

#include "mainwindow/DragPane.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/controls/TreeView.h"
#include "platform/NamedCursor.h"

#include <string>

class Form;

// Follows a drag over frmMain: where the pointer is (list, node, edge of the tree), lblDrag beside
// it and its picture.  MouseDrag, below it, knows only the mouse; ColorDrag, above it, what becomes
// of the color.
class DragTracker : public DragPane {
public:
    struct Controls {
        ListView& list;
        TreeView& tree;
        Label& label;
    };

    DragTracker(Form& form, const Controls& controls) : form_(form), controls_(controls) {}

    void Attach(DragEvents& events);
    void Tick(); // the form's timer kTimer

    void ShowDrag(float left, float top, DragMode picture) override;
    void MarkDropNode(const std::string& key) override;
    void ScrollTree(TreeEdge towards) override;
    void EndDrag() override;

    // A drag takes every key; Escape gives it up.
    bool TakeKey(const MSG& message);

    static constexpr UINT_PTR kTimer = 2;

private:
    [[nodiscard]] DragPoint Point() const; // where the pointer is
    void LoadCursors();
    [[nodiscard]] DragPoint PointAt(POINT screen) const;
    [[nodiscard]] TreeEdge EdgeAt(POINT screen) const;
    [[nodiscard]] HCURSOR CursorOf(DragMode picture) const;

    Form& form_;
    Controls controls_;
    DragEvents* events_ = nullptr; // until it is attached, nothing is dragged
    CursorHandle move_;
    CursorHandle copy_;
};
