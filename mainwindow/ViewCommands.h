#pragma once

#include "common/Settings.h"
#include "mainwindow/BarsPane.h"
#include "mainwindow/EditorPane.h"
#include "mainwindow/LayoutController.h"
#include "mainwindow/ListPane.h"

#include <map>

// The view menu: which bars are shown, which editor, and how list
// and editor show colors.  A switch
// flips its entry's check mark first; the window and the setting follow the mark.
class ViewCommands {
public:
    ViewCommands(BarsPane& bars, ListPane& list, EditorPane& editor, LayoutController& layout,
                 Settings& settings)
        : bars_(bars), list_(list), editor_(editor), layout_(layout), settings_(settings) {}

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
    void ArrangeWindow();

    BarsPane& bars_;
    ListPane& list_;
    EditorPane& editor_;
    LayoutController& layout_;
    Settings& settings_;
    std::map<int, bool> marks_;
    ListViewMode listView_ = ListViewMode::LargeIcons;
};
