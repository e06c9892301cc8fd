#include "mainwindow/HistoryStep.h"
#include "tests/bench/library/BenchFile.h"
#include "tests/bench/library/HeapUse.h"
#include "tests/bench/library/MeasuredLibrary.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"

#include <cstdio>
#include <stdexcept>

namespace {

constexpr int kSteps = 10000;

struct Costs {
    Times without; // a step without history
    Times with;
    Times undo;
};

void Print(const char* step, const Costs& costs) {
    std::printf("| %s | %.3f | %.3f | %.2f | %.3f |\n", step, costs.without.Median(),
                costs.with.Median(), costs.with.Median() / costs.without.Median(),
                costs.undo.Median());
}

// Each in a library of its own, so that both find the same memory.
template <typename Work>
void MeasureStep(BenchPlatform& platform, const BenchFile& file, Work work, Costs& costs) {
    {
        MeasuredLibrary measured(platform);
        measured.libraryFiles.FileReadColorValues(file.Path());
        measured.library.Tree().SetJournal(nullptr);
        costs.without.Measure([&] { work(measured.library); });
    }
    MeasuredLibrary measured(platform);
    measured.libraryFiles.FileReadColorValues(file.Path());
    const int before = measured.library.Colors().UpperBound();
    costs.with.Measure([&] {
        const HistoryStep step(measured.library.History(), measured.panes, {.command = 1});
        work(measured.library);
    });
    costs.undo.Measure([&] { static_cast<void>(measured.library.History().Undo()); });
    if (measured.library.Colors().UpperBound() != before)
        throw std::runtime_error("Undo left another number of colors");
}

void MeasureMemory(BenchPlatform& platform, const BenchFile& file) {
    MeasuredLibrary measured(platform);
    measured.libraryFiles.FileReadColorValues(file.Path());
    ColorTable& colors = measured.library.Colors();
    const HeapUse::Counting counting;
    for (int step = 0; step < kSteps; ++step) {
        const HistoryStep recorded(measured.library.History(), measured.panes, {.command = 1});
        const int index = 1 + static_cast<int>(step * 7919LL % colors.UpperBound());
        colors.SetName(index, "a name that is long enough for the heap");
        colors.SetValues(index, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    }
    const double bytes = static_cast<double>(counting.Taken().bytes);
    std::printf("\n%d single steps: %.2f MiB, %.0f bytes a step\n\n", kSteps, bytes / 1048576,
                bytes / kSteps);
}

} // namespace

void ReportHistory(BenchPlatform& platform, const BenchSizes& sizes) {
    const BenchFile file(platform, "history.tnt", MakePlainLibrary(sizes.largest, 10));
    std::printf("%d colors in 10 groups\n\n| step | without history, ms | with it, ms | ratio | "
                "undo, ms |\n| --- | --- | --- | --- | --- |\n",
                sizes.largest);
    Costs newColor;
    Costs oneColor;
    Costs group;
    for (int repetition = 0; repetition <= sizes.repetitions; ++repetition) {
        MeasureStep(
            platform, file, [](ColorLibrary& library) { library.NewColorNode("0DG5", "new", {}); },
            newColor);
        MeasureStep(
            platform, file,
            [](ColorLibrary& library) {
                library.Colors().Erase(library.Colors().UpperBound() / 2);
            },
            oneColor);
        MeasureStep(
            platform, file,
            [](ColorLibrary& library) {
                library.Colors().EraseGroups({"0DG5"});
                library.Tree().Remove("0DG5");
            },
            group);
    }
    Print("new color", newColor);
    Print("delete a color", oneColor);
    Print("delete a group, a tenth of all", group);
    MeasureMemory(platform, file);
}
