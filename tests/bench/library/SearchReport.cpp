#include "common/ColorSpaces.h"
#include "library/ColorSearch.h"
#include "library/NearestColors.h"
#include "mainwindow/FindHits.h"
#include "tests/bench/library/Reports.h"
#include "tests/bench/library/Timing.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>

namespace {

constexpr std::size_t kSlice = 2000; // records between two looks at the window

using MadeValues = std::function<ColorValueArray(std::mt19937&)>;

ColorValueArray ValuesUpTo(std::mt19937& random, int highest) {
    ColorValueArray values{};
    for (std::int16_t& each : values)
        each = static_cast<std::int16_t>(std::uniform_int_distribution<int>(0, highest)(random));
    return values;
}

// All of about the lightness of the middle gray: luminance tells none of them from another.
ColorValueArray ValuesOfOneLightness(std::mt19937& random) {
    while (true) {
        const ColorValueArray values = ValuesUpTo(random, 255);
        const LabColor lab = LabOfSrgb({values[0], values[1], values[2]});
        if (std::abs(lab.lightness - LabOfSrgb({128, 128, 128}).lightness) < 1)
            return values;
    }
}

void Append(ColorTable& colors, int count, const MadeValues& made) {
    std::mt19937 random(11);
    const ColorTable::GroupNumber group = colors.NumberOfGroup("0DG1");
    for (int index = 0; index < count; ++index) {
        const std::string name =
            (index % 20 == 0 ? "Grünton " : "Color no ") + std::to_string(1000000 + index);
        colors.Append(group, static_cast<std::uint32_t>(index + 1), name, name, made(random));
    }
}

// Looks at each byte of each name and at the values.
std::int64_t PassPlainly(const ColorTable& colors) {
    std::int64_t sum = 0;
    for (int index = 1; index <= colors.UpperBound(); ++index) {
        const StoredColor& color = colors.ViewAt(index).color;
        for (const char byte : color.name.View())
            sum += byte;
        for (const std::int16_t value : color.values)
            sum += value;
    }
    return sum;
}

LibraryRevision NoChange() {
    return [] { return std::uint64_t{0}; };
}

std::size_t SearchText(const ColorTable& colors, const char* text) {
    ColorSearch search(colors, NoChange(), ParseColorQuery(text));
    while (search.Advance(kSlice)) {
    }
    return search.NameHits().size() + search.ColorHits().size();
}

double FarthestOfNearest(const ColorTable& colors, const RedGreenBlue& wanted, std::size_t count) {
    NearestColors search(colors, NoChange(), wanted, count);
    while (search.Advance(kSlice)) {
    }
    return search.Sorted().back().difference;
}

void MeasureTexts(const ColorTable& colors, int repetitions) {
    for (const char* const text : {"1000777", "GRÜN 9", "nowhere", "#FFCC4D"}) {
        Times floor;
        Times search;
        std::int64_t sum = 0;
        std::size_t hits = 0;
        for (int repetition = 0; repetition <= repetitions; ++repetition) {
            floor.Measure([&] { sum += PassPlainly(colors); });
            search.Measure([&] { hits = SearchText(colors, text); });
        }
        if (sum == 0)
            throw std::runtime_error("The floor read nothing");
        std::printf("| text \"%s\", %zu hits | %.1f | %.1f | %.2f |\n", text, hits, floor.Median(),
                    search.Median(), search.Median() / floor.Median());
    }
}

void MeasureNearest(const char* what, const ColorTable& colors, std::size_t count,
                    int repetitions) {
    for (const RedGreenBlue& wanted : {RedGreenBlue{255, 204, 77}, {128, 128, 128}, {0, 0, 255}}) {
        Times search;
        double farthest = 0;
        for (int repetition = 0; repetition <= repetitions; ++repetition)
            search.Measure([&] { farthest = FarthestOfNearest(colors, wanted, count); });
        std::printf("| %zu nearest to %d %d %d, %s: up to %.2f | | %.1f | |\n", count, wanted.red,
                    wanted.green, wanted.blue, what, farthest, search.Median());
    }
}

// As the window that finds colors goes through them: how long it waits for one slice.
void MeasureSlices(const char* what, FindHits& hits, const std::function<void()>& begin) {
    Times slices(WallMilliseconds);
    begin();
    do
        slices.Measure([&] { static_cast<void>(hits.Advance()); });
    while (!hits.IsDone());
    std::printf("| longest of %zu slices, %s | | %.1f | |\n", slices.Count(), what,
                slices.Longest());
}

void MeasureSlices(int colors) {
    ColorLibrary library;
    library.NewGroupNode(library.NewMainNode("library"), "group");
    Append(library.Colors(), colors, ValuesOfOneLightness);
    FindHits hits(library, FindHits::kSlice);
    for (const char* const text : {"1000777", "o", "nowhere"})
        MeasureSlices(text, hits, [&] { hits.Search(ParseColorQuery(text)); });
    MeasureSlices("100 nearest, one lightness", hits, [&] {
        hits.SearchNearest({}, {128, 128, 128});
    });
}

} // namespace

void ReportSearch(const BenchSizes& sizes) {
    std::printf(
        "\n| %d colors | plain pass, ms | search, ms | ratio |\n| --- | --- | --- | --- |\n",
        sizes.largest);
    ColorTable colors;
    Append(colors, sizes.largest, [](std::mt19937& random) { return ValuesUpTo(random, 255); });
    MeasureTexts(colors, sizes.repetitions);
    MeasureNearest("any colors", colors, 100, sizes.repetitions);
    MeasureNearest("any colors", colors, NearestColors::kMost, sizes.repetitions);
    ColorTable few;
    Append(few, sizes.largest, [](std::mt19937& random) { return ValuesUpTo(random, 15); });
    MeasureNearest("4,096 dark colors", few, 100, sizes.repetitions);
    ColorTable even;
    Append(even, sizes.largest, ValuesOfOneLightness);
    MeasureNearest("one lightness", even, 100, sizes.repetitions);
    MeasureSlices(sizes.largest);
    std::printf("\n");
}
