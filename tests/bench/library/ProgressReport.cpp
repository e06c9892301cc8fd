#include "tests/bench/library/BenchFile.h"
#include "tests/bench/library/MeasuredLibrary.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"

#include <cstdio>

namespace {

// Without and with the window in turn; one library is gone before the other is loaded, and each
// comes first every other time, for the heap is not the same then.
void MeasureProgress(BenchPlatform& platform, int colors, int repetitions) {
    const BenchFile file(platform, "progress.tnt", MakePlainLibrary(colors, (colors + 999) / 1000));
    // The window is painted by other processes too.
    Times without(WallMilliseconds);
    Times with(WallMilliseconds);
    long long calls = 0;
    const auto load = [&](bool withWindow) {
        MeasuredLibrary library(platform, withWindow ? platform.ProgressWindow() : nullptr);
        (withWindow ? with : without).Measure([&] {
            library.libraryFiles.FileReadColorValues(file.Path());
        });
        calls = withWindow ? calls : library.noProgress.calls;
    };
    for (int repetition = 0; repetition <= repetitions; ++repetition) {
        load(repetition % 2 == 0);
        load(repetition % 2 != 0);
    }
    std::printf("| %d | %lld | %.1f | %.1f | %.1f %% |\n", colors, calls, without.Median(),
                with.Median(), (with.Median() - without.Median()) / without.Median() * 100);
}

} // namespace

void ReportProgress(BenchPlatform& platform, const BenchSizes& sizes) {
    if (platform.ProgressWindow() == nullptr)
        return;
    std::printf("| colors | calls | without the window, ms | with it, ms | cost |\n"
                "| --- | --- | --- | --- | --- |\n");
    for (int colors = 1000; colors <= sizes.largest; colors *= 10)
        MeasureProgress(platform, colors, sizes.repetitions);
    std::printf("\n");
}
