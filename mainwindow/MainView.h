#pragma once

#include "mainwindow/BarsPane.h"
#include "mainwindow/DragPane.h"
#include "mainwindow/EditorPane.h"
#include "mainwindow/LayoutPane.h"
#include "mainwindow/ListPane.h"
#include "mainwindow/TreePane.h"
#include "support/windows/BannerEvents.h"

#include <string>
#include <vector>

// The main window around its panes.
class MainFrame {
public:
    virtual ~MainFrame() = default;
    virtual void ShowWindow() = 0;
    virtual void SetBanner(int index) = 0; // from 1; 0: none
    virtual void StopBannerTimer() = 0;
    // The pointer over the window is the hour-glass, as long as nothing is asked.
    virtual void SetWaiting(bool waiting) = 0;
    virtual void EndProgram() = 0; // leaves the message loop
};

// What the user did to the main window as a whole.
class MainFrameEvents {
public:
    virtual ~MainFrameEvents() = default;

    virtual void RunCommand(int command) = 0; // IDM_ number: menu, toolbar, button menu, shortcut
    virtual void EscapePressed() = 0;
    virtual void FilesDropped(const std::vector<std::string>& paths) = 0;
    virtual void SampleChosen(const std::string& path) = 0; // offered by the list's hint
    virtual void WindowClosing() = 0;                       // close box
    virtual void SessionEnding() = 0; // the user's session ends, and with it the process
    virtual void SecondPassed() = 0;
};

// The main window as its rules see it: it shows what it is told and decides nothing.
struct MainView {
    MainFrame& frame;
    TreePane& tree;
    ListPane& list;
    EditorPane& editor;
    BarsPane& bars;
    LayoutPane& layout;
    DragPane& drag;
};

// Where each pane reports what the user did: the class that has the rule.
struct MainEvents {
    MainFrameEvents& frame;
    TreeEvents& tree;
    ListRows& rows;
    ListEvents& list;
    const ListHints& hints;
    EditorEvents& editor;
    LayoutEvents& layout;
    DragEvents& drag;
    BannerEvents& banner;
};
