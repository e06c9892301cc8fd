#include "mainwindow/ColorDrag.h"

#include "common/InfoTextNumber.h"
#include "mainwindow/HistoryStep.h"

#include <utility>

bool ColorDrag::DragStarted(const HeldKeys& keys, const DragPoint& at) {
    if (parts_.activity.operationRuns || parts_.list.SelectedKey().empty())
        return false;
    const bool ctrlAlone = keys.ctrl && !keys.shift && !keys.alt;
    parts_.activity.drag = ctrlAlone ? DragMode::Copy : DragMode::Move;
    underWay_ = true;
    restsOn_.clear();
    Show(at);
    return true;
}

void ColorDrag::DragMoved(const DragPoint& at) {
    if (underWay_)
        Show(at);
}

void ColorDrag::Show(const DragPoint& at) {
    Rest(at);
    const std::string group = parts_.library.Tree().IsGroup(at.node) ? at.node : std::string();
    parts_.pane.MarkDropNode(group);
    parts_.pane.ShowDrag(at.left, at.top,
                         at.isOverList || !group.empty() ? parts_.activity.drag : DragMode::None);
}

void ColorDrag::Rest(const DragPoint& at) {
    if (std::exchange(restsOn_, at.node) != at.node)
        ticks_ = 0;
}

void ColorDrag::DragTicked(const DragPoint& at) {
    if (!underWay_)
        return;
    if (at.edge != TreeEdge::None)
        parts_.pane.ScrollTree(at.edge);
    Show(at);
    if (!restsOn_.empty() && ++ticks_ == kTicksToExpand)
        parts_.library.Tree().Expand(restsOn_);
}

void ColorDrag::DragDropped(const DragPoint& at) {
    if (!underWay_)
        return;
    End();
    if (at.isOverList)
        parts_.activity.drag = DragMode::None;
    else if (!at.node.empty())
        DropOnNode(at.node);
}

void ColorDrag::DropOnNode(const std::string& key) {
    // Idle whatever happens from here on.
    const DragMode mode = std::exchange(parts_.activity.drag, DragMode::None);
    if (!parts_.library.Tree().IsGroup(key)) {
        parts_.prompts.ShowMessage(parts_.texts.GetInfoText(InfoTextNumber::DropOnGroupOnly),
                                   MessageStyle::Information,
                                   parts_.texts.GetInfoText(InfoTextNumber::Color));
        return;
    }
    const bool moves = mode == DragMode::Move;
    const HistoryStep step(
        parts_.library.History(), parts_.panes,
        {.textNumber = moves ? InfoTextNumber::MoveColor : InfoTextNumber::CopyColor});
    if (moves)
        parts_.editing.MoveInto(key);
    else
        parts_.editing.CopyInto(key);
}

void ColorDrag::DragCancelled() {
    if (!underWay_)
        return;
    parts_.activity.drag = DragMode::None;
    End();
}

void ColorDrag::End() {
    underWay_ = false;
    parts_.pane.MarkDropNode({});
    parts_.pane.EndDrag();
}

void ColorDrag::ListPressed() {
    parts_.activity.drag = DragMode::None;
}
