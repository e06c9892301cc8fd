// Rules: Finding colors
#include "mainwindow/FindHits.h"

#include <gtest/gtest.h>

namespace {

using Change = FindHits::Change;

constexpr int kColors = 5000;

// Slices of no time: each looks at some colors only.
class FindHitsTest : public testing::Test {
protected:
    FindHitsTest() {
        group = library.Colors().NumberOfGroup(
            library.NewGroupNode(library.NewMainNode("Library"), "Group"));
        for (int number = 1; number <= kColors; ++number)
            Add("color " + std::to_string(number), {number % 256, 0, 0});
    }

    void Add(const std::string& name, const RedGreenBlue& color) {
        library.Colors().Append(group, static_cast<std::uint32_t>(++lastNumber), name, name,
                                {static_cast<std::int16_t>(color.red),
                                 static_cast<std::int16_t>(color.green),
                                 static_cast<std::int16_t>(color.blue)});
    }
    // Until it is done; gives what became of the rows.
    std::vector<Change> AdvanceToTheEnd() {
        std::vector<Change> changes;
        do
            changes.push_back(hits.Advance());
        while (!hits.IsDone() && changes.size() < 100);
        return changes;
    }
    [[nodiscard]] std::vector<int> Places() const {
        std::vector<int> places;
        for (int row = 0; row < hits.Count(); ++row)
            places.push_back(library.Colors().IndexOfId(hits.At(row)));
        return places;
    }

    ColorLibrary library;
    ColorTable::GroupNumber group = 0;
    int lastNumber = 0;
    FindHits hits{library, std::chrono::milliseconds(0)};
};

TEST_F(FindHitsTest, NothingIsWantedAtFirst) {
    EXPECT_TRUE(hits.IsDone());
    EXPECT_EQ(hits.Advance(), Change::None);
    EXPECT_EQ(hits.Count(), 0);
}

TEST_F(FindHitsTest, RowsOfATextComeSliceBySlice) {
    hits.Search(ParseColorQuery("color"));
    EXPECT_FALSE(hits.IsDone());
    EXPECT_EQ(hits.Count(), 0);
    const std::vector<Change> changes = AdvanceToTheEnd();
    EXPECT_GT(changes.size(), 1U);
    EXPECT_EQ(changes, std::vector(changes.size(), Change::MoreRows));
    EXPECT_EQ(hits.Count(), kColors);
    EXPECT_EQ(hits.DifferenceAt(0), std::nullopt);
    EXPECT_EQ(hits.Advance(), Change::None) << "nothing is left";
}

TEST_F(FindHitsTest, ColorsWithTheValuesStandBeforeThoseWithTheWords) {
    Add("was #010000 once", {9, 9, 9});
    Add("other", {1, 0, 0});
    hits.Search(ParseColorQuery("#010000"));
    AdvanceToTheEnd();
    std::vector<int> wanted;
    for (int number = 1; number <= kColors; number += 256)
        wanted.push_back(number);
    wanted.insert(wanted.end(), {kColors + 2, kColors + 1});
    EXPECT_EQ(Places(), wanted);
    EXPECT_EQ(hits.RowOf(library.Colors().IdAt(257)), 1);
    EXPECT_EQ(hits.RowOf(library.Colors().IdAt(2)), std::nullopt);
}

TEST_F(FindHitsTest, RowsBeforeOthersThatWereThereAreAnotherList) {
    Add("was #010000 once", {9, 9, 9});
    for (int number = 0; number < kColors; ++number)
        Add("more", {7, 7, 7});
    Add("last", {1, 0, 0});
    hits.Search(ParseColorQuery("#010000"));
    EXPECT_EQ(AdvanceToTheEnd().back(), Change::AllRows);
}

TEST_F(FindHitsTest, SearchThatBeginsAnewIsAnotherList) {
    hits.Search(ParseColorQuery("color 1"));
    AdvanceToTheEnd();
    const int before = hits.Count();
    library.Colors().Erase(1);
    EXPECT_EQ(hits.Advance(), Change::AllRows);
    EXPECT_FALSE(hits.IsDone());
    AdvanceToTheEnd();
    EXPECT_EQ(hits.Count(), before - 1);
}

TEST_F(FindHitsTest, NamesOfGroupsAreOfTheListToo) {
    hits.Search(ParseColorQuery("color 4999"));
    AdvanceToTheEnd();
    library.Tree().SetText("0DG1", "other");
    EXPECT_EQ(hits.Advance(), Change::AllRows);
}

TEST_F(FindHitsTest, NearestAreTheFirstHundred) {
    hits.SearchNearest({}, {200, 0, 0});
    const std::vector<Change> changes = AdvanceToTheEnd();
    EXPECT_EQ(changes, std::vector(changes.size(), Change::AllRows));
    ASSERT_EQ(hits.Count(), 100);
    EXPECT_EQ(hits.DifferenceAt(0), 0.0);
    EXPECT_EQ(Places().front(), 200);
    for (int row = 1; row < hits.Count(); ++row)
        EXPECT_LE(hits.DifferenceAt(row - 1), hits.DifferenceAt(row));
    EXPECT_EQ(hits.Advance(), Change::None);
}

TEST_F(FindHitsTest, TextAfterNearestHasNoDifferences) {
    hits.SearchNearest({}, {200, 0, 0});
    AdvanceToTheEnd();
    hits.Search(ParseColorQuery("color 12"));
    EXPECT_EQ(hits.Count(), 0);
    AdvanceToTheEnd();
    EXPECT_EQ(Places().front(), 12);
    EXPECT_EQ(hits.DifferenceAt(0), std::nullopt);
}

} // namespace
