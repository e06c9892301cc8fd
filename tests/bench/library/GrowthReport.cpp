#include "tests/bench/library/BenchFile.h"
#include "tests/bench/library/MeasuredLibrary.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"

#include <cstdio>
#include <stdexcept>

namespace {

constexpr int kLookUps = 10000;

struct Growth {
    Times load;
    Times keys;      // of kLookUps colors
    Times groups;    // each group once
    Times newColor;  // in the first group
    Times oneColor;  // deleted
    Times oneGroup;  // deleted
    Times wholeTree; // deleted
};

std::vector<std::string> ScatteredKeys(const ColorTable& colors) {
    std::vector<std::string> keys;
    for (int number = 0; number < kLookUps; ++number)
        keys.push_back(colors.At(1 + static_cast<int>(number * 7919LL % colors.UpperBound())).key);
    return keys;
}

void MeasureLookUps(const ColorLibrary& library, Growth& growth) {
    const std::vector<std::string> keys = ScatteredKeys(library.Colors());
    const std::vector<std::string> groups = library.GetGroupInMainnode("0D");
    long long found = 0;
    growth.keys.Measure([&] {
        for (const std::string& key : keys)
            found += library.GetColornodeIndex(key) > 0 ? 1 : 0;
    });
    growth.groups.Measure([&] {
        for (const std::string& group : groups)
            found += library.GetColorCountInGroup(group);
    });
    if (found != kLookUps + library.Colors().UpperBound())
        throw std::runtime_error("A look-up found something else");
}

// What the delete commands do to the model; the last one leaves nothing.
void MeasureDeleting(ColorLibrary& library, Growth& growth) {
    ColorTable& colors = library.Colors();
    growth.oneColor.Measure([&] {
        colors.Erase(colors.UpperBound() / 2);
        static_cast<void>(colors.IndexOfKey("0DG1E1"));
    });
    growth.oneGroup.Measure([&] {
        colors.EraseGroups({"0DG1"});
        library.Tree().Remove("0DG1");
        static_cast<void>(colors.IndexOfKey("0DG1E1"));
    });
    growth.wholeTree.Measure([&] {
        colors.EraseGroups(library.GetGroupInMainnode("0D"));
        library.Tree().Remove("0D");
    });
    if (colors.UpperBound() != 0)
        throw std::runtime_error("Something was not deleted");
}

void MeasureOnce(BenchPlatform& platform, const std::string& path, Growth& growth) {
    MeasuredLibrary measured(platform);
    growth.load.Measure([&] { measured.libraryFiles.FileReadColorValues(path); });
    MeasureLookUps(measured.library, growth);
    growth.newColor.Measure([&] { measured.library.NewColorNode("0DG1", "new", {}); });
    MeasureDeleting(measured.library, growth);
}

} // namespace

void ReportGrowth(BenchPlatform& platform, const BenchSizes& sizes) {
    std::printf("| colors | load, ms | a look-up by key, ns | a look-up by group, ns | "
                "new color, ms | delete a color, ms | delete a group, ms | "
                "delete the library, ms |\n"
                "| --- | --- | --- | --- | --- | --- | --- | --- |\n");
    for (int colors = 1000; colors <= sizes.largest; colors *= 10) {
        const int groups = colors / 1000;
        const BenchFile file(platform, "growth.tnt", MakePlainLibrary(colors, groups));
        Growth growth;
        for (int repetition = 0; repetition <= sizes.repetitions; ++repetition)
            MeasureOnce(platform, file.Path(), growth);
        std::printf("| %d | %.2f | %.0f | %.0f | %.3f | %.3f | %.3f | %.2f |\n", colors,
                    growth.load.Median(), growth.keys.Median() * 1e6 / kLookUps,
                    growth.groups.Median() * 1e6 / groups, growth.newColor.Median(),
                    growth.oneColor.Median(), growth.oneGroup.Median(), growth.wholeTree.Median());
    }
    std::printf("\n");
}
