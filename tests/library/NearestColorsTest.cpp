// Rules: Finding colors
#include "library/NearestColors.h"

#include "common/ColorDifference.h"

#include <gtest/gtest.h>

#include <random>

namespace {

class NearestColorsTest : public testing::Test {
protected:
    void Add(int red, int green, int blue, const std::string& name = {}) {
        ColorRecord record;
        record.name = name;
        record.groupKey = "0DG1";
        record.key = "0DG1E" + std::to_string(++number);
        record.values[0] = static_cast<std::int16_t>(red);
        record.values[1] = static_cast<std::int16_t>(green);
        record.values[2] = static_cast<std::int16_t>(blue);
        colors.Append(std::move(record));
    }
    // highest: of each value; a small one makes many colors that are the same.
    void AddRandom(int count, int highest) {
        std::uniform_int_distribution<int> value(0, highest);
        while (count-- > 0)
            Add(value(random), value(random), value(random));
    }
    NearestColors Search(const RedGreenBlue& wanted, std::size_t count) {
        return {colors, [this] { return revision; }, wanted, count};
    }
    std::vector<NearColor> Find(const RedGreenBlue& wanted, std::size_t count) {
        NearestColors search = Search(wanted, count);
        EXPECT_FALSE(search.Advance(1000000));
        return search.Sorted();
    }
    // Every difference worked out, and sorted.
    std::vector<NearColor> FindPlainly(const RedGreenBlue& wanted, std::size_t count) {
        std::vector<NearColor> all;
        for (int index = 1; index <= colors.UpperBound(); ++index) {
            const ColorValueArray& values = colors.ViewAt(index).color.values;
            const LabColor lab = LabOfSrgb({values[0], values[1], values[2]});
            all.push_back({colors.IdAt(index), ColorDifference(LabOfSrgb(wanted), lab)});
        }
        std::ranges::stable_sort(all, {}, &NearColor::difference);
        all.resize(std::min(count, all.size()));
        return all;
    }

    ColorTable colors;
    std::mt19937 random{5};
    std::uint64_t revision = 1;
    int number = 0;
};

constexpr RedGreenBlue kWanted[] = {{0, 0, 0},    {255, 255, 255}, {128, 128, 128},
                                    {0, 0, 255},  {255, 204, 77},  {3, 200, 90},
                                    {60, 60, 61}, {250, 2, 250}};

TEST_F(NearestColorsTest, AreThoseThatEveryDifferenceWorkedOutGives) {
    AddRandom(4000, 255);
    for (const RedGreenBlue& wanted : kWanted)
        for (const std::size_t count : {1U, 7U, 100U, 1000U})
            ASSERT_EQ(Find(wanted, count), FindPlainly(wanted, count));
}

TEST_F(NearestColorsTest, EqualOnesStandInTheOrderOfTheTable) {
    AddRandom(3000, 4);
    for (const RedGreenBlue& wanted : kWanted)
        ASSERT_EQ(Find(wanted, 50), FindPlainly(wanted, 50));
}

TEST_F(NearestColorsTest, GraysAreFoundWhereTheLeastDifferenceIsTheDifference) {
    for (int round = 0; round < 3; ++round)
        for (int value = 0; value <= 255; ++value)
            Add(value, value, value);
    for (const int wanted : {0, 1, 100, 254, 255})
        ASSERT_EQ(Find({wanted, wanted, wanted}, 20), FindPlainly({wanted, wanted, wanted}, 20));
}

TEST_F(NearestColorsTest, SameColorIsNotDifferentAtAll) {
    Add(1, 2, 3);
    Add(255, 204, 77);
    const std::vector<NearColor> found = Find({255, 204, 77}, 1);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].id, colors.IdAt(2));
    EXPECT_DOUBLE_EQ(found[0].difference, 0);
}

TEST_F(NearestColorsTest, SlicesGiveWhatOnePassGives) {
    AddRandom(1000, 255);
    NearestColors search = Search({10, 200, 30}, 10);
    while (search.Advance(7))
        EXPECT_LE(search.Sorted().size(), 10U);
    EXPECT_EQ(search.Looked(), 1000);
    EXPECT_EQ(search.Sorted(), FindPlainly({10, 200, 30}, 10));
}

TEST_F(NearestColorsTest, ChangedLibraryIsSearchedAnew) {
    AddRandom(100, 255);
    Add(9, 9, 9);
    NearestColors search = Search({9, 9, 9}, 3);
    EXPECT_FALSE(search.Advance(1000));
    colors.SetValues(101, {200, 0, 0, 0, 0, 0, 0, 0, 0});
    ++revision;
    EXPECT_TRUE(search.Advance(1));
    EXPECT_EQ(search.Starts(), 2);
    EXPECT_EQ(search.Sorted().size(), 1U);
    EXPECT_FALSE(search.Advance(1000));
    EXPECT_EQ(search.Sorted(), FindPlainly({9, 9, 9}, 3));
}

TEST_F(NearestColorsTest, QueryLeavesOthersOut) {
    Add(10, 10, 10, "gray");
    Add(11, 10, 10, "Red one");
    Add(90, 10, 10, "the RED two");
    Add(200, 10, 10, "red");
    const auto find = [this](const char* text, std::size_t count) {
        NearestColors search(
            colors, [this] { return revision; }, {10, 10, 10}, count, ParseColorQuery(text));
        EXPECT_FALSE(search.Advance(1000));
        std::vector<int> indexes;
        for (const NearColor& near : search.Sorted())
            indexes.push_back(colors.IndexOfId(near.id));
        return indexes;
    };
    EXPECT_EQ(find("red", 2), (std::vector{2, 3}));
    EXPECT_EQ(find("200 10 10", 5), std::vector{4});
    EXPECT_EQ(find("none", 5), std::vector<int>{});
    EXPECT_EQ(find("", 5), (std::vector{1, 2, 3, 4}));
}

TEST_F(NearestColorsTest, CountIsWithinItsLimits) {
    AddRandom(1100, 255);
    EXPECT_EQ(Find({1, 2, 3}, 0).size(), 1U);
    EXPECT_EQ(Find({1, 2, 3}, 5000).size(), NearestColors::kMost);
}

TEST_F(NearestColorsTest, ValuesBeyondTheirRangeCountAsItsEnds) {
    Add(-5, 300, 32767);
    EXPECT_DOUBLE_EQ(Find({0, 255, 255}, 1).at(0).difference, 0);
}

} // namespace
