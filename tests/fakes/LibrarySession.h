#pragma once

#include "mainwindow/FileCommands.h"
#include "mainwindow/MainPanes.h"
#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeClipboard.h"
#include "tests/fakes/FakeCollation.h"
#include "tests/fakes/FakeMainView.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"

#include <string>

// A user who works on libraries, with the files that are given; the window is one in memory.
struct LibrarySession {
    // shown: null: a progress window in memory.
    LibrarySession(Files& files, const AnsiCodePage& codePage, ProgressView* shown = nullptr)
        : filesOfLibrary(library, {.files = files, .codePage = codePage, .clock = clock}),
          libraryFiles({.files = filesOfLibrary,
                        .library = library,
                        .panes = panes,
                        .settings = settings,
                        .prompts = prompts,
                        .texts = texts,
                        .progress = shown != nullptr ? *shown : progress}),
          commands({.library = library,
                    .files = libraryFiles,
                    .disk = files,
                    .newNodes = newNodes,
                    .editing = editing,
                    .bars = view,
                    .settings = settings,
                    .prompts = prompts,
                    .texts = texts,
                    .codePage = codePage,
                    .programFolder = "C:\\prog"}) {}
    LibrarySession(const LibrarySession&) = delete;
    LibrarySession& operator=(const LibrarySession&) = delete;

    // As with Open; it is not to be loaded at every start.
    void Open(const std::string& path) {
        prompts.chosenFiles.emplace_back(path);
        prompts.answers.push_back(Answer::No);
        commands.mnuFileOpen_Click();
    }

    FakePrompts prompts;
    FakeTexts texts;
    FakeProgress progress;
    FakeMainView view;
    FakeCollation collation;
    FakeClipboard clipboard;
    FakeCalendarClock clock;
    Settings settings;
    ColorLibrary library;
    LibraryFiles filesOfLibrary;
    MainPanes mainPanes{view.View(), library, prompts, texts, collation};
    MainActivity& activity = mainPanes.activity;
    ColorEditor& editor = mainPanes.editor;
    ColorList& list = mainPanes.list;
    LibraryPanes& panes = mainPanes.library;
    NewNodes newNodes{
        {.library = library, .panes = panes, .editor = editor, .prompts = prompts, .texts = texts}};
    EditingCommands editing{{.library = library,
                             .list = list,
                             .panes = panes,
                             .newNodes = newNodes,
                             .settings = settings,
                             .clipboard = clipboard,
                             .prompts = prompts,
                             .texts = texts}};
    ShownLibraryFiles libraryFiles;
    FileCommands commands;
};
