#include "tests/bench/library/BenchFile.h"
#include "tests/bench/library/HeapUse.h"
#include "tests/bench/library/MeasuredLibrary.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"

#include <cstdio>
#include <stdexcept>

namespace {

void Load(MeasuredLibrary& measured, const std::string& path) {
    if (!measured.libraryFiles.FileReadColorValues(path))
        throw std::runtime_error("The library was not loaded");
}

// The keys are needed before anything can be shown, so that the look-ups belong to the load.
void LoadAndLookUp(MeasuredLibrary& measured, const std::string& path) {
    Load(measured, path);
    const ColorTable& colors = measured.library.Colors();
    const int last = colors.UpperBound();
    if (colors.IndexOfKey(colors.At(last).key) != last || colors.IndexesOfGroup("0DG1").empty())
        throw std::runtime_error("The indexes are wrong");
}

void Print(const char* what, double floor, double library) {
    std::printf("| %s | %.0f | %.0f | %.2f |\n", what, floor, library, library / floor);
}

void MeasureReading(BenchPlatform& platform, const PlainLibrary& plain, int repetitions) {
    const BenchFile file(platform, "read.tnt", plain);
    Times floor;
    Times library;
    std::int64_t sum = 0;
    for (int repetition = 0; repetition <= repetitions; ++repetition) {
        floor.Measure([&] { sum += ReadPlainly(platform.FileSystem(), file.Path()); });
        MeasuredLibrary measured(platform);
        library.Measure([&] { LoadAndLookUp(measured, file.Path()); });
    }
    if (sum == 0)
        throw std::runtime_error("The floor read nothing");
    Print("read", floor.Median(), library.Median());
}

void MeasureWriting(BenchPlatform& platform, const PlainLibrary& plain, int repetitions) {
    const BenchFile file(platform, "plain.tnt", plain);
    const BenchFile written(platform, "written.tnt");
    MeasuredLibrary measured(platform);
    measured.settings.createBackups = false;
    Load(measured, file.Path());
    measured.library.Tree().SetText("0D", "Bench");
    Times floor;
    Times library;
    for (int repetition = 0; repetition <= repetitions; ++repetition) {
        floor.Measure([&] { WritePlainly(platform.FileSystem(), file.Path(), plain); });
        library.Measure([&] {
            if (!measured.libraryFiles.FileWriteColorValues(written.Path(), "0D").isWritten)
                throw std::runtime_error("The library was not written");
        });
    }
    Files& files = platform.FileSystem();
    if (files.ReadWhole(file.Path()) != files.ReadWhole(written.Path()))
        throw std::runtime_error("Floor and library wrote different bytes");
    Print("write", floor.Median(), library.Median());
}

void MeasureMemory(BenchPlatform& platform, int colors) {
    const BenchFile file(platform, "memory.tnt", MakePlainLibrary(colors, (colors + 999) / 1000));
    MeasuredLibrary measured(platform);
    const HeapUse::Counting counting;
    LoadAndLookUp(measured, file.Path());
    const HeapUse::Count taken = counting.Taken();
    const auto each = [&](std::ptrdiff_t value) {
        return static_cast<double>(value) / static_cast<double>(colors);
    };
    std::printf("| %d | %.0f | %.2f | %.0f |\n", colors, each(taken.bytes), each(taken.blocks),
                each(taken.peakBytes));
}

} // namespace

void ReportFiles(BenchPlatform& platform, const BenchSizes& sizes) {
    const int groups = (sizes.largest + 999) / 1000;
    const PlainLibrary plain = MakePlainLibrary(sizes.largest, groups);
    std::printf("%d colors in %d groups\n\n| | floor, ms | library, ms | ratio |\n"
                "| --- | --- | --- | --- |\n",
                sizes.largest, groups);
    MeasureReading(platform, plain, sizes.repetitions);
    MeasureWriting(platform, plain, sizes.repetitions);
    std::printf("\n| colors | bytes a color | blocks a color | while loading, bytes a color |\n"
                "| --- | --- | --- | --- |\n");
    // Where the containers have just grown, and where they are full.
    for (const int colors :
         {sizes.largest * 3 / 4, sizes.largest, sizes.largest * 21 / 20, sizes.largest * 5 / 4})
        MeasureMemory(platform, colors);
    std::printf("\n");
}
