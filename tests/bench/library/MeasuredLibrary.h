#pragma once

#include "library/LibraryFiles.h"
#include "tests/bench/library/BenchPlatform.h"
#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeLibraryHost.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"

// A progress window that takes no time; counts what it is told.
class NoProgress : public ProgressView {
public:
    void ShowProgress(const std::string&, std::int32_t, std::int32_t) override { ++calls; }
    void SetProgress(std::int32_t) override { ++calls; }
    void RefreshProgress() override { ++calls; }
    void HideProgress() override { ++calls; }

    long long calls = 0;
};

// The library as the program has it, on the platform's files.
struct MeasuredLibrary {
    explicit MeasuredLibrary(BenchPlatform& bench, ProgressView* shown = nullptr)
        : platform(bench), libraryFiles(library, settings,
                                        {platform.FileSystem(), platform.CodePage(), prompts, texts,
                                         shown != nullptr ? *shown : progress, clock}) {
        library.SetHost(host);
        libraryFiles.SetHost(host);
    }

    BenchPlatform& platform;
    FakeCalendarClock clock;
    FakePrompts prompts;
    FakeTexts texts;
    NoProgress progress;
    FakeLibraryHost host;
    Settings settings;
    ColorLibrary library{prompts, texts};
    LibraryFiles libraryFiles;
};
