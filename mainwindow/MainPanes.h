#pragma once

#include "common/ports/InfoTexts.h"
#include "common/ports/Prompts.h"
#include "common/ports/TextCollation.h"
#include "mainwindow/MainActivity.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/ColorList.h"
#include "mainwindow/LayoutController.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/MainView.h"

// The rules of the main window's panes.
struct MainPanes {
    MainPanes(const MainView& view, ColorLibrary& colors, Prompts& prompts, InfoTexts& texts,
              const TextCollation& collation)
        : editor(view.editor, prompts, texts), list(colors, view.list, collation),
          library({.library = colors,
                   .tree = view.tree,
                   .list = list,
                   .editor = editor,
                   .activity = activity}),
          layout(view.layout) {}
    MainPanes(const MainPanes&) = delete;
    MainPanes& operator=(const MainPanes&) = delete;

    MainActivity activity;
    ColorEditor editor;
    ColorList list;
    LibraryPanes library;
    LayoutController layout;
};
