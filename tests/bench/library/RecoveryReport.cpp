#include "common/WorkerThread.h"
#include "library/RecoveryKeeper.h"
#include "tests/bench/library/BenchFile.h"
#include "tests/bench/library/MeasuredLibrary.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"
#include "tests/fakes/FakeRunningCopies.h"

#include <cstdio>
#include <stdexcept>

namespace {

// The folder of the benchmark's files, which is there.
class BenchFolder : public Folders {
public:
    bool Make(const std::string&) override { return true; }
    std::vector<std::string> FileNamesIn(const std::string&) override { return {}; }
};

struct Costs {
    Times look{WallMilliseconds};    // while the window waits
    Times change{WallMilliseconds};  // of a color in each thousandth, while the file is written
    Times written{WallMilliseconds}; // from the look to the end of the writing
    Times save{WallMilliseconds};    // the same bytes, made and written as a save does
};

void ChangeThousandth(ColorTable& colors, std::int16_t value) {
    for (int index = 1; index <= colors.UpperBound(); index += 1000)
        colors.SetValues(index, {value, 2, 3, 4, 5, 6, 7, 8, 9});
}

void MeasureRound(RecoveryKeeper& keeper, WorkerThread& work, ColorTable& colors, int round,
                  Costs& costs) {
    const auto value = static_cast<std::int16_t>(round);
    colors.SetValues(1, {value, 1, 1, 1, 1, 1, 1, 1, 1});
    costs.written.Measure([&] {
        costs.look.Measure([&] { keeper.Look(); });
        if (!work.IsBusy())
            throw std::runtime_error("Nothing was taken up");
        costs.change.Measure([&] { ChangeThousandth(colors, value); });
        work.Wait();
    });
}

void MeasureSave(MeasuredLibrary& measured, const std::string& path, Costs& costs) {
    costs.save.Measure([&] { measured.libraryFiles.FileWriteColorValues(path, "0D"); });
}

} // namespace

void ReportRecovery(BenchPlatform& platform, const BenchSizes& sizes) {
    const BenchFile file(platform, "recovery.tnt", MakePlainLibrary(sizes.largest, 10));
    MeasuredLibrary measured(platform);
    measured.settings.createBackups = false;
    measured.libraryFiles.FileReadColorValues(file.Path());
    BenchFolder folders;
    FakeRunningCopies copies;
    copies.own = "bench";
    const std::string folderOfFiles = platform.Folder();
    RecoveryFolder folder({.files = platform.FileSystem(),
                           .folders = folders,
                           .copies = copies,
                           .clock = measured.clock},
                          folderOfFiles.substr(0, folderOfFiles.size() - 1));
    WorkerThread work;
    RecoveryKeeper keeper({.library = measured.library,
                           .files = measured.filesOfLibrary,
                           .folder = folder,
                           .work = work,
                           .codePage = platform.CodePage()});
    Costs costs;
    for (int round = 1; round <= 2 * sizes.repetitions + 1; ++round)
        MeasureRound(keeper, work, measured.library.Colors(), round, costs);
    for (int round = 0; round < sizes.repetitions; ++round)
        MeasureSave(measured, file.Path(), costs);
    std::printf("\n%d colors in 10 groups, kept as they change, ms that pass\n\n"
                "| look | %d changes meanwhile | written after | a save |\n"
                "| --- | --- | --- | --- |\n| %.2f | %.2f | %.0f | %.0f |\n\n",
                sizes.largest, (sizes.largest + 999) / 1000, costs.look.Median(),
                costs.change.Median(), costs.written.Median(), costs.save.Median());
    keeper.Look();
    folder.Remove(copies.own + "-1");
}
