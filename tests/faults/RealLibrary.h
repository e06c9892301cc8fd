#pragma once

#include "library/FileCommands.h"
#include "platform/Win32AnsiCodePage.h"
#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeLibraryHost.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"

#include <string>

// The colour library and its file commands on a real file system; message boxes are kept.
struct RealLibrary {
    explicit RealLibrary(Files& files)
        : libraryFiles(library, settings, {files, codePage, prompts, texts, progress, clock}),
          commands({library, libraryFiles, settings, prompts, texts, codePage, "C:\\prog"}) {
        library.SetHost(libraryHost);
        libraryFiles.SetHost(libraryHost);
        commands.SetHost(host);
    }

    // As with Open; the library is the one that the commands work on then.
    void Open(const std::string& path);
    void AddColors(int count, const std::string& name = "added color ");
    void Save() { commands.mnuFileSave_Click(); }

    Win32AnsiCodePage codePage{1252};
    FakeCalendarClock clock;
    FakePrompts prompts;
    FakeTexts texts;
    FakeProgress progress;
    FakeLibraryHost libraryHost;
    FakeFileCommandsHost host;
    Settings settings;
    ColorLibrary library{prompts, texts};
    LibraryFiles libraryFiles;
    FileCommands commands;
};
