#pragma once

#include "common/Settings.h"
#include "mainwindow/BarsPane.h"
#include "mainwindow/EditorPane.h"
#include "mainwindow/LayoutController.h"
#include "mainwindow/ListPane.h"
#include "mainwindow/TreePane.h"

#include <map>

// The view menu: which bars are shown, which editor, and how list and editor show colors.  A switch
// flips its entry's check mark first; the window and the setting follow the mark.
class ViewCommands {
public:
    struct Panes {
        BarsPane& bars;
        TreePane& tree;
        ListPane& list;
        EditorPane& editor;
    };

    ViewCommands(const Panes& panes, const NodeTips& tips, LayoutController& layout,
                 Settings& settings)
        : bars_(panes.bars), tree_(panes.tree), list_(panes.list), editor_(panes.editor),
          tips_(tips), layout_(layout), settings_(settings) {}

    // The window as it is designed: everything shown, the small swatch.
    void ShowDesignedState();

    // Runs each switch once whose setting differs from the designed state.
    void ApplySettings();

    // command: a switch of the view menu.
    void Toggle(int command);

    void SetListView(ListViewMode mode);

    // The toolbar presses the button of a view by itself when it is clicked; this presses that of
    // the view which is shown.
    void ShowPressedView();

private:
    void SetMark(int command, bool checked);
    void Turn(int command);
    void Show(int command, bool visible);
    void ShowColors(bool shown);
    void ArrangeWindow();

    BarsPane& bars_;
    TreePane& tree_;
    ListPane& list_;
    EditorPane& editor_;
    const NodeTips& tips_;
    LayoutController& layout_;
    Settings& settings_;
    std::map<int, bool> marks_;
    ListViewMode listView_ = ListViewMode::LargeIcons;
};
