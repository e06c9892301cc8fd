#pragma once

#include "mainwindow/MainView.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/controls/TreeView.h"
#include "platform/DragCursor.h"

#include <string>

class Form;

// A colour that is dragged from lvColor to tvColor on frmMain: lblDrag at the pointer, the
// pointer's picture and the reports.
class MainDrag {
public:
    struct Controls {
        ListView& list;
        TreeView& tree;
        Label& label;
    };

    MainDrag(Form& form, const Controls& controls) : form_(form), controls_(controls) {}

    void Attach(MainViewEvents& events);

    void Show(float left, float top, DragMode picture);
    void Mark(const std::string& node) { controls_.tree.MarkDropTarget(node); }
    void Scroll(TreeEdge towards) { controls_.tree.ScrollLine(towards == TreeEdge::Bottom); }
    void End();

    // A drag takes every key; Escape gives it up.
    bool TakeKey(const MSG& message);

    static constexpr UINT_PTR kTimer = 2;
    [[nodiscard]] DragPoint Point() const; // where the pointer is

private:
    void LoadCursors();
    [[nodiscard]] DragPoint PointAt(POINT screen) const;
    [[nodiscard]] TreeEdge EdgeAt(POINT screen) const;
    [[nodiscard]] HCURSOR CursorOf(DragMode picture) const;

    Form& form_;
    Controls controls_;
    CursorHandle move_;
    CursorHandle copy_;
};
