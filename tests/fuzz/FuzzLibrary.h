#pragma once

#include "library/LibraryFiles.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeLibraryHost.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"

#include <cstdlib>
#include <string>

// Ends the fuzzer with a finding when a condition does not hold.
inline void Require(bool condition) {
    if (!condition)
        std::abort();
}

// A colour library with its files in memory.
struct FuzzLibrary {
    FuzzLibrary() {
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
    LibraryFiles libraryFiles{library, settings, {files, codePage, prompts, texts, progress}};
};
