#pragma once

#include "tests/bench/library/BenchPlatform.h"
#include "tests/fakes/LibrarySession.h"

// A progress window that takes no time; counts what it is told.
class NoProgress : public ProgressView {
public:
    void ShowProgress(const std::string&, std::int32_t, std::int32_t) override { ++calls; }
    void SetProgress(std::int32_t) override { ++calls; }
    void RefreshProgress() override { ++calls; }
    void HideProgress() override { ++calls; }

    long long calls = 0;
};

struct MeasuredProgress {
    NoProgress noProgress;
};

// The library as the program has it, on the platform's files.
struct MeasuredLibrary : MeasuredProgress, LibrarySession {
    explicit MeasuredLibrary(BenchPlatform& bench, ProgressView* shown = nullptr)
        : LibrarySession(bench.FileSystem(), bench.CodePage(),
                         shown != nullptr ? shown : &noProgress) {}
};
