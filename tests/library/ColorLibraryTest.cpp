// Rules: Library model
#include "library/ColorLibrary.h"

#include "common/RuntimeError.h"
#include "tests/fakes/FakeLibraryHost.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using Question = FakePrompts::Question;
constexpr const char* kTitle = "Chromixs - TNT4SWX";

class ColorLibraryTest : public testing::Test {
protected:
    ColorLibraryTest() { library.SetHost(host); }

    std::string KeyOfLastColor() { return library.Colors().At(library.Colors().UpperBound()).key; }

    FakePrompts prompts;
    FakeTexts texts;
    FakeLibraryHost host;
    ColorLibrary library{prompts, texts};
};

TEST_F(ColorLibraryTest, NewLibraryAsksForLibraryGroupAndColorEachWithItsPromptAndDefault) {
    prompts.typed = {"Lib", "Grp", "Col"};
    EXPECT_TRUE(library.NewMainNode());
    EXPECT_EQ(prompts.questions, (std::vector<Question>{{"<50>", kTitle, "New Node0"},
                                                        {"<51>", kTitle, "New Group1"},
                                                        {"<52>", kTitle, "New Color1"}}));
    EXPECT_EQ(library.Tree().At("0D").text, "Lib");
    EXPECT_EQ(library.Tree().At("0D").tag, "unsaved");
    EXPECT_EQ(library.Tree().At("0D").image, "Colfile");
    EXPECT_EQ(library.Tree().At("0DG1").text, "Grp");
    EXPECT_EQ(library.Tree().At("0DG1").image, "Palette");
    EXPECT_EQ(library.Colors().At(1).name, "Col");
}

TEST_F(ColorLibraryTest, DefaultNameOfALibraryCountsTheLibraries) {
    library.NewMainNode("a");
    library.NewMainNode("b");
    library.NewMainNode();
    EXPECT_EQ(prompts.questions.front().preset, "New Node2");
}

TEST_F(ColorLibraryTest, CancelledLibraryNameAddsNothing) {
    EXPECT_FALSE(library.NewMainNode());
    EXPECT_TRUE(library.Tree().MainNodes().empty());
    EXPECT_EQ(prompts.questions.size(), 1U);
}

TEST_F(ColorLibraryTest, CancelledGroupNameLeavesALibraryWithoutGroups) {
    prompts.typed = {"Lib"};
    library.NewMainNode();
    EXPECT_TRUE(library.GetGroupInMainnode("0D").empty());
    EXPECT_EQ(library.Tree().At("0D").tag, "unsaved");
}

TEST_F(ColorLibraryTest, CancelledColorNameLeavesAnEmptyGroup) {
    prompts.typed = {"Lib", "Grp"};
    library.NewMainNode();
    EXPECT_EQ(library.GetColorCountInGroup("0DG1"), 0);
    EXPECT_EQ(library.Colors().UpperBound(), 0);
}

TEST_F(ColorLibraryTest, NameThatIsPassedIsUsedAsItIsAlsoWhenEmpty) {
    EXPECT_TRUE(library.NewMainNode(""));
    EXPECT_EQ(library.Tree().At("0D").text, "");
    EXPECT_TRUE(prompts.questions.empty());
    EXPECT_EQ(library.Tree().At("0D").tag, "");
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
    EXPECT_TRUE(prompts.questions.empty());
}

TEST_F(ColorLibraryTest, GroupMadeByTheUserIsSelectedAndAsksForItsFirstColor) {
    library.NewMainNode("a");
    prompts.typed = {"Grp", "Col"};
    EXPECT_TRUE(library.NewGroupNode());
    EXPECT_EQ(library.Tree().Selected(), "0DG1");
    EXPECT_EQ(KeyOfLastColor(), "0DG1E1");
}

TEST_F(ColorLibraryTest, NewGroupGoesUpFromTheSelectedGroupToItsLibrary) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewMainNode("b");
    library.Tree().Select("0DG1");
    library.NewGroupNode(); // cancelled
    EXPECT_EQ(prompts.questions.front().preset, "New Group2");
    EXPECT_EQ(library.Tree().Selected(), "0D") << "each parent on the way is selected";
}

TEST_F(ColorLibraryTest, NewGroupAndNewColorWithoutSelectionStartANewLibrary) {
    EXPECT_FALSE(library.NewGroupNode());
    EXPECT_FALSE(library.NewColorNode());
    EXPECT_EQ(prompts.questions, (std::vector<Question>{{"<50>", kTitle, "New Node0"},
                                                        {"<50>", kTitle, "New Node0"}}));
}

TEST_F(ColorLibraryTest, NewGroupOrColorWithoutSelectionAsksThreeNamesAndNoMore) {
    const std::vector<Question> three = {{"<50>", kTitle, "New Node0"},
                                         {"<51>", kTitle, "New Group1"},
                                         {"<52>", kTitle, "New Color1"}};
    const std::function<bool()> starts[] = {[&] { return library.NewGroupNode(); },
                                            [&] { return library.NewColorNode(); }};
    for (const auto& start : starts) {
        prompts.questions.clear();
        prompts.typed = {"Lib", "Grp", "Col", "one too many"};
        start();
        EXPECT_EQ(prompts.questions, three);
        EXPECT_EQ(library.GetGroupInMainnode("0D"), std::vector<std::string>{"0DG1"});
        EXPECT_EQ(library.Colors().UpperBound(), 1);
        library.Colors().Erase(1);
        library.Tree().Remove("0D");
    }
}

TEST_F(ColorLibraryTest, NewColorInALibraryWithGroupsGoesToTheFirstGroup) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewGroupNode("0D", "two");
    EXPECT_TRUE(library.NewColorNode({}, "red"));
    EXPECT_EQ(library.Tree().Selected(), "0DG1");
    EXPECT_EQ(KeyOfLastColor(), "0DG1E1");
}

TEST_F(ColorLibraryTest, NewColorInALibraryWithoutGroupsAsksForAGroupAndItsColor) {
    library.NewMainNode("a");
    prompts.typed = {"Grp", "Col"};
    EXPECT_FALSE(library.NewColorNode());
    EXPECT_EQ(prompts.questions, (std::vector<Question>{{"<51>", kTitle, "New Group1"},
                                                        {"<52>", kTitle, "New Color1"}}));
    EXPECT_EQ(library.Colors().At(1).name, "Col");
}

TEST_F(ColorLibraryTest, NewColorIsNewHasBothNamesAndTheActiveValues) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    host.activeValues = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    library.NewColorNode("0DG1", "Blau");
    const ColorRecord expected{"Blau", "0DG1E1", "0DG1", true, {1, 2, 3, 4, 5, 6, 7, 8, 9}, "Blau"};
    EXPECT_EQ(library.Colors().At(1), expected);
}

TEST_F(ColorLibraryTest, NewColorRefreshesItsGroupAndIsSelected) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewColorNode("0DG1", "red");
    ASSERT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(host.shown[0].first, "0DG1");
    EXPECT_EQ(host.shown[0].second, "0DG1E1");
}

TEST_F(ColorLibraryTest, LowestFreeNumberBecomesTheColorKey) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    for (const char* name : {"a", "b", "c"})
        library.NewColorNode("0DG1", name);
    library.Colors().Erase(library.GetColornodeIndex("0DG1E2"));
    library.NewColorNode("0DG1", "d");
    EXPECT_EQ(KeyOfLastColor(), "0DG1E2");
    library.NewColorNode("0DG1", "e");
    EXPECT_EQ(KeyOfLastColor(), "0DG1E4");
}

TEST_F(ColorLibraryTest, ColorOfAnotherGroupWithTheSameNumberDoesNotMatter) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewGroupNode("0D", "two");
    library.NewColorNode("0DG1", "x");
    library.NewColorNode("0DG2", "y");
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

TEST_F(ColorLibraryTest, SelectedColorIsRememberedInItsGroup) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    host.selectedColor = "0DG1E7";
    library.RememberActiveColorNode();
    EXPECT_EQ(library.Tree().At("0DG1").tag, "0DG1E7") << "of a library: its first group";
}

TEST_F(ColorLibraryTest, NothingIsRememberedWithoutAGroupOrAColor) {
    library.RememberActiveColorNode();
    library.NewMainNode("a");
    library.Tree().SetTag("0D", "C:\\a.tnt");
    host.selectedColor = "0DG1E7";
    library.RememberActiveColorNode();
    EXPECT_EQ(library.Tree().At("0D").tag, "C:\\a.tnt") << "a library's Tag is its file";
    library.NewGroupNode("0D", "one");
    library.Tree().SetTag("0DG1", "before");
    host.selectedColor.clear();
    library.RememberActiveColorNode();
    EXPECT_EQ(library.Tree().At("0DG1").tag, "before");
}

} // namespace
