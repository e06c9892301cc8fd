// Rules: Finding colors
#include "library/ColorSearch.h"

#include <gtest/gtest.h>

namespace {

class ColorSearchTest : public testing::Test {
protected:
    ColorId Add(const std::string& name, const RedGreenBlue& color = {}) {
        ColorRecord record;
        record.name = name;
        record.groupKey = "0DG1";
        record.key = "0DG1E" + std::to_string(++number);
        record.values[0] = static_cast<std::int16_t>(color.red);
        record.values[1] = static_cast<std::int16_t>(color.green);
        record.values[2] = static_cast<std::int16_t>(color.blue);
        colors.Append(std::move(record));
        return colors.IdAt(colors.UpperBound());
    }
    ColorSearch Search(std::string_view text) {
        return {colors, [this] { return revision; }, ParseColorQuery(text)};
    }
    // All hits by name.
    std::vector<ColorId> Find(std::string_view text) {
        ColorSearch search = Search(text);
        EXPECT_FALSE(search.Advance(1000000));
        EXPECT_TRUE(search.ColorHits().empty());
        return search.NameHits();
    }

    ColorTable colors;
    std::uint64_t revision = 1;
    int number = 0;
};

using Ids = std::vector<ColorId>;

TEST_F(ColorSearchTest, AllWordsArePartsOfTheNameInAnyOrderAndCase) {
    const ColorId first = Add("RAL 6018 Gelbgrün");
    Add("RAL 6019 Weißgrün");
    const ColorId third = Add("gelb, fast GRÜN");
    EXPECT_EQ(Find("GRÜN gelb"), (Ids{first, third}));
    EXPECT_EQ(Find("ral 6018"), Ids{first});
    EXPECT_EQ(Find("grun"), Ids{});
    EXPECT_EQ(Find("gelb gelb"), (Ids{first, third}));
}

TEST_F(ColorSearchTest, QueryForNothingFindsNothing) {
    Add("a");
    Add("");
    EXPECT_EQ(Find(""), Ids{});
    EXPECT_EQ(Find("  "), Ids{});
}

TEST_F(ColorSearchTest, NumbersFindColorsWithTheseValuesAndNamesWithTheseWords) {
    Add("other", {255, 204, 78});
    const ColorId named = Add("77 of 255 and 204", {1, 2, 3});
    const ColorId exact = Add("Sun", {255, 204, 77});
    const ColorId both = Add("255 204 77", {255, 204, 77});
    ColorSearch search = Search("255 204 77");
    EXPECT_FALSE(search.Advance(100));
    EXPECT_EQ(search.ColorHits(), (Ids{exact, both}));
    EXPECT_EQ(search.NameHits(), Ids{named});
}

TEST_F(ColorSearchTest, HexNumberFindsTheColorAndNamesWithIt) {
    const ColorId exact = Add("Sun", {255, 204, 77});
    const ColorId named = Add("was #FFCC4D once", {1, 2, 3});
    ColorSearch search = Search("#ffcc4d");
    EXPECT_FALSE(search.Advance(100));
    EXPECT_EQ(search.ColorHits(), Ids{exact});
    EXPECT_EQ(search.NameHits(), Ids{named});
}

TEST_F(ColorSearchTest, HitsComeSliceBySlice) {
    const Ids all = {Add("a"), Add("a"), Add("a")};
    ColorSearch search = Search("a");
    EXPECT_EQ(search.Looked(), 0);
    EXPECT_TRUE(search.Advance(2));
    EXPECT_EQ(search.NameHits(), (Ids{all[0], all[1]}));
    EXPECT_EQ(search.Looked(), 2);
    EXPECT_FALSE(search.Advance(1));
    EXPECT_EQ(search.NameHits(), all);
    EXPECT_FALSE(search.Advance(1));
    EXPECT_EQ(search.NameHits(), all);
    EXPECT_EQ(search.Starts(), 1);
}

TEST_F(ColorSearchTest, SliceOfNothingLooksAtNothing) {
    Add("a");
    ColorSearch search = Search("a");
    EXPECT_TRUE(search.Advance(0));
    EXPECT_EQ(search.Looked(), 0);
}

TEST_F(ColorSearchTest, ChangedLibraryIsSearchedAnew) {
    Add("a");
    const ColorId second = Add("ab");
    ColorSearch search = Search("a");
    EXPECT_TRUE(search.Advance(1));
    colors.SetNames(1, "x");
    ++revision;
    EXPECT_TRUE(search.Advance(1));
    EXPECT_EQ(search.Starts(), 2);
    EXPECT_TRUE(search.NameHits().empty());
    EXPECT_FALSE(search.Advance(1));
    EXPECT_EQ(search.NameHits(), Ids{second});
}

TEST_F(ColorSearchTest, ColorsThatHaveGoneUntoldAreNotLookedAt) {
    Add("a");
    Add("a");
    ColorSearch search = Search("a");
    EXPECT_TRUE(search.Advance(1));
    colors.Erase(2);
    colors.Erase(1);
    EXPECT_FALSE(search.Advance(5));
    EXPECT_TRUE(search.NameHits().empty());
    EXPECT_EQ(search.Starts(), 2);
}

TEST_F(ColorSearchTest, FinishedSearchGoesOnWhenAColorComes) {
    const ColorId first = Add("a");
    ColorSearch search = Search("a");
    EXPECT_FALSE(search.Advance(5));
    const ColorId second = Add("A");
    ++revision;
    EXPECT_FALSE(search.Advance(5));
    EXPECT_EQ(search.NameHits(), (Ids{first, second}));
}

} // namespace
