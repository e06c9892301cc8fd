#pragma once

#include "platform/Win32AnsiCodePage.h"
#include "tests/fakes/LibrarySession.h"

#include <string>

struct WesternCodePage {
    Win32AnsiCodePage codePage{1252};
};

// A session on a real file system; message boxes are kept.
struct RealLibrary : WesternCodePage, LibrarySession {
    explicit RealLibrary(Files& files) : LibrarySession(files, codePage) {}

    // The library is the one that the commands work on then.
    void Open(const std::string& path);
    void AddColors(int count, const std::string& name = "added color ");
    void Save() { commands.mnuFileSave_Click(); }
};
