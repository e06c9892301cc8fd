#include "library/ColorTable.h"

#include "common/RuntimeError.h"

#include <gtest/gtest.h>

namespace {

ColorRecord Color(const std::string& key, const std::string& group) {
    return {"name of " + key, key, group, false, {}, {}};
}

ColorTable ThreeColors() {
    ColorTable table;
    table.Append(Color("0DG1E1", "0DG1"));
    table.Append(Color("0DG2E1", "0DG2"));
    table.Append(Color("0DG1E2", "0DG1"));
    return table;
}

TEST(ColorTable, StartsWithThePlaceholderAlone) {
    const ColorTable table;
    EXPECT_EQ(table.UpperBound(), 0);
    EXPECT_EQ(table.At(0), ColorRecord{});
}

TEST(ColorTable, ColorsOfAGroupAreFoundInTheOrderOfTheTable) {
    EXPECT_EQ(ThreeColors().IndexesOfGroup("0DG1"), (std::vector<int>{1, 3}));
    EXPECT_TRUE(ThreeColors().IndexesOfGroup("0dg1").empty()) << "look-ups are case-sensitive";
}

TEST(ColorTable, KeyThatIsNotThereHasIndexZero) {
    EXPECT_EQ(ThreeColors().IndexOfKey("0DG1E9"), 0);
    EXPECT_EQ(ThreeColors().IndexOfKey("0dg1e1"), 0) << "look-ups are case-sensitive";
}

TEST(ColorTable, FirstOfEqualKeysIsFound) {
    ColorTable table = ThreeColors();
    table.Append(Color("0DG2E1", "0DG9"));
    EXPECT_EQ(table.IndexOfKey("0DG2E1"), 2);
}

TEST(ColorTable, ErasingMovesLaterColorsDown) {
    ColorTable table = ThreeColors();
    EXPECT_EQ(table.IndexOfKey("0DG1E2"), 3);
    table.Erase(1);
    EXPECT_EQ(table.UpperBound(), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E2"), 2);
    EXPECT_EQ(table.IndexOfKey("0DG1E1"), 0);
    EXPECT_EQ(table.IndexesOfGroup("0DG1"), std::vector<int>{2});
}

TEST(ColorTable, ErasingAGroupIsErasingItsColorsOneByOne) {
    ColorTable table = ThreeColors();
    table.EraseGroups({"0DG1"});
    EXPECT_EQ(table.UpperBound(), 1);
    EXPECT_EQ(table.At(1).key, "0DG2E1");
    EXPECT_EQ(table.IndexOfKey("0DG2E1"), 1);
}

TEST(ColorTable, PlaceholderAndIndexesPastTheEndAreNoColors) {
    ColorTable table = ThreeColors();
    EXPECT_THROW(table.Erase(0), RuntimeError);
    EXPECT_THROW(table.Erase(4), RuntimeError);
    EXPECT_THROW(static_cast<void>(table.At(4)), RuntimeError);
    EXPECT_THROW(static_cast<void>(table.At(-1)), RuntimeError);
    EXPECT_EQ(table.UpperBound(), 3);
}

} // namespace
