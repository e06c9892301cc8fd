// Rules: Library model
#include "library/ColorLibrary.h"

#include "common/RuntimeError.h"

#include <gtest/gtest.h>

namespace {

constexpr ColorValueArray kValues{1, 2, 3, 4, 5, 6, 7, 8, 9};

class ColorLibraryTest : public testing::Test {
protected:
    std::string KeyOfLastColor() { return library.Colors().At(library.Colors().UpperBound()).key; }

    ColorLibrary library;
};

TEST_F(ColorLibraryTest, NameThatIsPassedIsUsedAsItIsAlsoWhenEmpty) {
    library.NewMainNode("");
    EXPECT_EQ(library.Tree().At("0D").text, "");
    EXPECT_EQ(library.Tree().At("0D").file, std::nullopt);
}

TEST_F(ColorLibraryTest, LowestFreeNumberBecomesTheMainKey) {
    library.NewMainNode("a");
    library.NewMainNode("b");
    library.Tree().Remove("0D");
    library.NewMainNode("c");
    EXPECT_EQ(library.Tree().At("0D").text, "c");
    library.NewMainNode("d");
    EXPECT_EQ(library.Tree().At("2D").text, "d");
}

TEST_F(ColorLibraryTest, RevisionIsGreaterAfterEveryChangeAndStaysWithoutOne) {
    std::uint64_t before = library.Revision();
    const auto isChanged = [&] {
        return library.Revision() > std::exchange(before, library.Revision());
    };
    const std::string mainKey = library.NewMainNode("a");
    EXPECT_TRUE(isChanged());
    const std::string group = library.NewGroupNode(mainKey, "g");
    EXPECT_TRUE(isChanged());
    library.NewColorNode(group, "c", kValues);
    EXPECT_TRUE(isChanged());
    library.Tree().SetText(group, "h");
    EXPECT_TRUE(isChanged());
    library.Colors().SetNames(1, "d");
    EXPECT_TRUE(isChanged());
    library.Tree().Select(group);
    library.Tree().RememberColor(group, "x");
    library.Colors().SetNames(1, "d");
    EXPECT_FALSE(isChanged());
    library.Colors().Erase(1);
    EXPECT_TRUE(isChanged());
    library.Colors().Reset();
    EXPECT_TRUE(isChanged());
}

TEST_F(ColorLibraryTest, NewLibraryIsSelected) {
    library.NewMainNode("a");
    library.NewMainNode("b");
    EXPECT_EQ(library.Tree().Selected(), "1D");
}

TEST_F(ColorLibraryTest, GroupNumberIsCountBasedAndADuplicateIsRefused) {
    library.NewMainNode("a");
    EXPECT_EQ(library.NewGroupNode("0D", "one"), "0DG1");
    EXPECT_EQ(library.NewGroupNode("0D", "two"), "0DG2");
    library.Tree().Remove("0DG1");
    try {
        library.NewGroupNode("0D", "again");
        FAIL() << "the key 0DG2 is taken";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::DuplicateKey);
        EXPECT_EQ(error.Description(), ErrorTexts::GroupNumberTaken.builtIn);
    }
    EXPECT_EQ(library.GetGroupInMainnode("0D"), std::vector<std::string>{"0DG2"});
    EXPECT_EQ(library.Tree().At("0DG2").text, "two");
}

TEST_F(ColorLibraryTest, GroupWithANameMakesNoColorAndSelectsNothing) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    EXPECT_EQ(library.Tree().Selected(), "0D");
    EXPECT_EQ(library.Colors().UpperBound(), 0);
}

TEST_F(ColorLibraryTest, LowestFreeNumberBecomesTheColorKey) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    for (const char* name : {"a", "b", "c"})
        library.NewColorNode("0DG1", name, kValues);
    library.Colors().Erase(library.GetColornodeIndex("0DG1E2"));
    library.NewColorNode("0DG1", "d", kValues);
    EXPECT_EQ(KeyOfLastColor(), "0DG1E2");
    library.NewColorNode("0DG1", "e", kValues);
    EXPECT_EQ(KeyOfLastColor(), "0DG1E4");
}

TEST_F(ColorLibraryTest, ColorOfAnotherGroupWithTheSameNumberDoesNotMatter) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewGroupNode("0D", "two");
    library.NewColorNode("0DG1", "x", kValues);
    library.NewColorNode("0DG2", "y", kValues);
    EXPECT_EQ(KeyOfLastColor(), "0DG2E1");
    EXPECT_EQ(library.GetColorIndexInGroup("0DG2"), std::vector<int>{2});
}

TEST_F(ColorLibraryTest, ActiveMainNodeIsFoundFromAGroupWithoutChangingTheSelection) {
    EXPECT_EQ(library.GetActiveMainnode(), "");
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.Tree().Select("0DG1");
    EXPECT_EQ(library.GetActiveMainnode(), "0D");
    EXPECT_EQ(library.Tree().Selected(), "0DG1");
}

} // namespace
