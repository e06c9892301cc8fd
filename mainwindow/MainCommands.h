#pragma once

#include "library/ColorLibrary.h"
#include "mainwindow/ColorEditor.h"
#include "mainwindow/EditingCommands.h"
#include "mainwindow/FileCommands.h"
#include "mainwindow/FindCommands.h"
#include "mainwindow/HistoryCommands.h"
#include "mainwindow/LevelsCommands.h"
#include "mainwindow/LibraryPanes.h"
#include "mainwindow/NewNodes.h"
#include "mainwindow/PaletteCommands.h"
#include "mainwindow/RecoverCommands.h"
#include "mainwindow/SolidWorksCommands.h"
#include "mainwindow/ViewCommands.h"
#include "support/windows/About.h"
#include "support/settings/Options.h"
#include "support/windows/TextViewer.h"

#include <functional>

// Who carries out the commands of the command table.
struct MainCommands {
    FileCommands& file;
    ColorLibrary& library;
    NewNodes& newNodes;
    EditingCommands& editing;
    HistoryCommands& history;
    FindCommands& find;
    RecoverCommands& recover;
    PaletteCommands& palettes;
    LibraryPanes& panes;
    ColorEditor& editor;
    ViewCommands& view;
    SolidWorksCommands& solidWorks;
    LevelsCommands& levels;
    Options& options;
    About& about;
    TextViewer& textViewer;
    std::function<void()> quit; // ends the program
};
