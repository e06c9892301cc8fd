#include "mainwindow/LibraryPanes.h"
#include "tests/bench/library/BenchFile.h"
#include "tests/bench/library/MeasuredLibrary.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"
#include "tests/fakes/FakeCollation.h"
#include "tests/fakes/FakeMainView.h"

#include <cstdio>
#include <stdexcept>

namespace {

constexpr int kVisibleRows = 40;
constexpr int kColumns = 10;

// What the owner-data list asks for when it paints the rows at one place.
std::size_t ReadVisibleCells(const ColorList& list, int firstRow) {
    std::size_t length = 0;
    for (int row = firstRow; row < firstRow + kVisibleRows; ++row)
        for (int column = 1; column <= kColumns; ++column)
            length += list.CellText(row, column).size();
    return length;
}

void MeasureGroup(BenchPlatform& platform, int colors, int repetitions) {
    const BenchFile file(platform, "list.tnt", MakePlainLibrary(colors, 1));
    MeasuredLibrary measured(platform);
    measured.libraryFiles.FileReadColorValues(file.Path());
    FakeMainView view;
    FakeCollation collation;
    ColorEditor editor(view, measured.prompts, measured.texts);
    ColorList list(measured.library, view, collation);
    const MainActivity activity;
    LibraryPanes panes({.library = measured.library,
                        .tree = view,
                        .list = list,
                        .editor = editor,
                        .activity = activity});
    Times fill;
    Times cells;
    for (int repetition = 0; repetition <= repetitions; ++repetition) {
        panes.NodeClicked("0D");
        fill.Measure([&] { panes.NodeClicked("0DG1"); });
        cells.Measure([&] {
            if (ReadVisibleCells(list, (colors - kVisibleRows) / 2) == 0)
                throw std::runtime_error("The list is empty");
        });
    }
    std::printf("| %d | %.3f | %.3f |\n", colors, fill.Median(), cells.Median());
}

} // namespace

void ReportList(BenchPlatform& platform, const BenchSizes& sizes) {
    std::printf("| colors of the group | click on the group, ms | %d visible rows, ms |\n"
                "| --- | --- | --- |\n",
                kVisibleRows);
    for (int colors = 100; colors <= sizes.largest; colors *= 10)
        MeasureGroup(platform, colors, sizes.repetitions);
    std::printf("\n");
}
