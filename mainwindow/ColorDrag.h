#pragma once

#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/ColorLibrary.h"
#include "mainwindow/EditingCommands.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/MainActivity.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/DragPane.h"

#include <string>

// Drags the list's selected color onto a group of the tree: a move, or a copy when Ctrl alone was
// held as the drag began.  Over the tree the drag scrolls and expands what the pointer rests on.
class ColorDrag : public DragEvents {
public:
    struct Parts {
        DragPane& pane;
        ColorLibrary& library;
        const LibraryPanes& panes;
        const ColorList& list;
        EditingCommands& editing;
        Prompts& prompts;
        InfoTexts& texts;
        MainActivity& activity;
    };

    // How many ticks the pointer rests on a library until its groups are shown.
    static constexpr int kTicksToExpand = 8;

    explicit ColorDrag(const Parts& parts) : parts_(parts) {}

    // The pointer carries a color.
    [[nodiscard]] bool IsUnderWay() const noexcept { return underWay_; }

    bool DragStarted(const HeldKeys& keys, const DragPoint& at) override;
    void DragMoved(const DragPoint& at) override;
    void DragTicked(const DragPoint& at) override;

    // On a group: the color is put there.  On a library: a note, nothing is moved.  Elsewhere
    // nothing happens.
    void DragDropped(const DragPoint& at) override;

    // Gives the drag up, if one is under way.
    void DragCancelled() override;

    void ListPressed() override;

private:
    void Show(const DragPoint& at);
    void Rest(const DragPoint& at);
    void End();
    void DropOnNode(const std::string& key);

    Parts parts_;
    bool underWay_ = false;
    std::string restsOn_; // node under the pointer
    int ticks_ = 0;       // since the pointer came onto it
};
