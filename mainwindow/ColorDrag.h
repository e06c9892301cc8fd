#pragma once

#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "library/LibraryTree.h"
#include "mainwindow/EditingCommands.h"
#include "mainwindow/MainView.h"

#include <string>

// Drags the list's selected colour onto a group of the tree: a move, or a copy when Ctrl alone was
// held as the drag began.  Over the tree the drag scrolls and expands what the pointer rests on.
class ColorDrag {
public:
    struct Parts {
        DragPane& pane;
        LibraryTree& tree;
        EditingCommands& editing;
        Prompts& prompts;
        InfoTexts& texts;
    };

    // How many ticks the pointer rests on a library until its groups are shown.
    static constexpr int kTicksToExpand = 8;

    explicit ColorDrag(const Parts& parts) : parts_(parts) {}

    // The pointer carries a colour.
    [[nodiscard]] bool IsUnderWay() const noexcept { return underWay_; }

    // A row's label is not edited while a mode is set.  A drop that hit no node leaves the mode as
    // it was until the list is pressed the next time, on purpose.
    [[nodiscard]] DragMode Mode() const noexcept { return mode_; }

    void Start(const HeldKeys& keys, const DragPoint& at);
    void Move(const DragPoint& at);
    void Tick(const DragPoint& at);

    // On a group: the colour is put there.  On a library: a note, nothing is moved.  Elsewhere
    // nothing happens.
    void Drop(const DragPoint& at);

    // Gives the drag up, if one is under way.
    void Cancel();

    void ListPressed();

private:
    void Show(const DragPoint& at);
    void Rest(const DragPoint& at);
    void End();
    void DropOnNode(const std::string& key);

    Parts parts_;
    bool underWay_ = false;
    DragMode mode_ = DragMode::None;
    std::string restsOn_; // node under the pointer
    int ticks_ = 0;       // since the pointer came onto it
};
