#pragma once

#include "library/LibraryFiles.h"
#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeLibraryHost.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"

// A colour library with its files in memory.
struct LibraryOnFakes {
    LibraryOnFakes() {
        library.SetHost(host);
        libraryFiles.SetHost(host);
    }

    FakePrompts prompts;
    FakeTexts texts;
    FakeFiles files;
    FakeProgress progress;
    FakeLibraryHost host;
    Settings settings;
    FakeCodePage codePage = FakeCodePage::Western();
    ColorLibrary library{prompts, texts};
    FakeCalendarClock clock;
    LibraryFiles libraryFiles{
        library, settings, {files, codePage, prompts, texts, progress, clock}};
};
