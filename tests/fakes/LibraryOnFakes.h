#pragma once

#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/LibrarySession.h"

struct FilesInMemory {
    FakeFiles files;
    FakeCodePage codePage = FakeCodePage::Western();
};

// A session with its files in memory.
struct LibraryOnFakes : FilesInMemory, LibrarySession {
    LibraryOnFakes() : LibrarySession(files, codePage) {}
};
