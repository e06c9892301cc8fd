// Rules: Library model
#include "mainwindow/NewNodes.h"

#include "common/RuntimeError.h"
#include "tests/fakes/LibraryOnFakes.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using Question = FakePrompts::Question;
constexpr const char* kTitle = "Chromixs - TNT4SWX";

class NewNodesTest : public testing::Test, protected LibraryOnFakes {
protected:
    NewNodesTest() { editor.ShowInitialColor(); }

    std::string KeyOfLastColor() { return library.Colors().At(library.Colors().UpperBound()).key; }
};

TEST_F(NewNodesTest, NewLibraryAsksForLibraryGroupAndColorEachWithItsPromptAndDefault) {
    prompts.typed = {"Lib", "Grp", "Col"};
    EXPECT_TRUE(newNodes.NewMainNode());
    EXPECT_EQ(prompts.questions, (std::vector<Question>{{"<50>", kTitle, "New Node0"},
                                                        {"<51>", kTitle, "New Group1"},
                                                        {"<52>", kTitle, "New Color1"}}));
    EXPECT_EQ(library.Tree().At("0D").text, "Lib");
    EXPECT_EQ(library.Tree().At("0D").file, std::nullopt);
    EXPECT_EQ(library.Tree().At("0DG1").text, "Grp");
    EXPECT_EQ(library.Colors().At(1).name, "Col");
}

TEST_F(NewNodesTest, DefaultNameOfALibraryCountsTheLibraries) {
    library.NewMainNode("a");
    library.NewMainNode("b");
    newNodes.NewMainNode();
    EXPECT_EQ(prompts.questions.front().preset, "New Node2");
}

TEST_F(NewNodesTest, CancelledLibraryNameAddsNothing) {
    EXPECT_FALSE(newNodes.NewMainNode());
    EXPECT_TRUE(library.Tree().MainNodes().empty());
    EXPECT_EQ(prompts.questions.size(), 1U);
}

TEST_F(NewNodesTest, CancelledGroupNameLeavesALibraryWithoutGroups) {
    prompts.typed = {"Lib"};
    newNodes.NewMainNode();
    EXPECT_TRUE(library.GetGroupInMainnode("0D").empty());
    EXPECT_EQ(library.Tree().At("0D").file, std::nullopt);
}

TEST_F(NewNodesTest, CancelledColorNameLeavesAnEmptyGroup) {
    prompts.typed = {"Lib", "Grp"};
    newNodes.NewMainNode();
    EXPECT_EQ(library.GetColorCountInGroup("0DG1"), 0);
    EXPECT_EQ(library.Colors().UpperBound(), 0);
}

TEST_F(NewNodesTest, GroupMadeByTheUserIsSelectedAndAsksForItsFirstColor) {
    library.NewMainNode("a");
    prompts.typed = {"Grp", "Col"};
    newNodes.NewGroupNode();
    EXPECT_EQ(library.Tree().Selected(), "0DG1");
    EXPECT_EQ(KeyOfLastColor(), "0DG1E1");
}

TEST_F(NewNodesTest, NewGroupGoesUpFromTheSelectedGroupToItsLibrary) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewMainNode("b");
    library.Tree().Select("0DG1");
    newNodes.NewGroupNode(); // cancelled
    EXPECT_EQ(prompts.questions.front().preset, "New Group2");
    EXPECT_EQ(library.Tree().Selected(), "0D") << "each parent on the way is selected";
}

TEST_F(NewNodesTest, NewGroupAndNewColorWithoutSelectionStartANewLibrary) {
    newNodes.NewGroupNode();
    newNodes.NewColorNode();
    EXPECT_EQ(prompts.questions, (std::vector<Question>{{"<50>", kTitle, "New Node0"},
                                                        {"<50>", kTitle, "New Node0"}}));
}

TEST_F(NewNodesTest, NewGroupOrColorWithoutSelectionAsksThreeNamesAndNoMore) {
    const std::vector<Question> three = {{"<50>", kTitle, "New Node0"},
                                         {"<51>", kTitle, "New Group1"},
                                         {"<52>", kTitle, "New Color1"}};
    const std::function<void()> starts[] = {[&] { newNodes.NewGroupNode(); },
                                            [&] { newNodes.NewColorNode(); }};
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

TEST_F(NewNodesTest, NewColorInALibraryWithGroupsGoesToTheFirstGroup) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewGroupNode("0D", "two");
    prompts.typed = {"red"};
    newNodes.NewColorNode();
    EXPECT_EQ(library.Tree().Selected(), "0DG1");
    EXPECT_EQ(KeyOfLastColor(), "0DG1E1");
}

TEST_F(NewNodesTest, NewColorInALibraryWithoutGroupsAsksForAGroupAndItsColor) {
    library.NewMainNode("a");
    prompts.typed = {"Grp", "Col"};
    newNodes.NewColorNode();
    EXPECT_EQ(prompts.questions, (std::vector<Question>{{"<51>", kTitle, "New Group1"},
                                                        {"<52>", kTitle, "New Color1"}}));
    EXPECT_EQ(library.Colors().At(1).name, "Col");
}

TEST_F(NewNodesTest, NewColorIsNewHasBothNamesAndTheActiveValues) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    for (std::size_t index = 0; index < 9; ++index)
        editor.SetText(index, std::to_string(index + 1));
    prompts.typed = {"Blau"};
    newNodes.NewColorNode();
    const ColorRecord expected{"Blau", "0DG1E1", "0DG1", true, {1, 2, 3, 4, 5, 6, 7, 8, 9}, "Blau"};
    EXPECT_EQ(library.Colors().At(1), expected);
}

TEST_F(NewNodesTest, NewColorIsListedWithItsGroupSelectedAndRemembered) {
    library.NewMainNode("a");
    library.NewGroupNode("0D", "one");
    library.NewColorNode("0DG1", "before", {});
    prompts.typed = {"red"};
    newNodes.NewColorNode();
    EXPECT_EQ(list.RowCount(), 2);
    EXPECT_EQ(list.SelectedKey(), "0DG1E2");
    EXPECT_EQ(library.Tree().At("0DG1").lastColor, "0DG1E2");
}

TEST_F(NewNodesTest, GroupWhoseNumberIsTakenIsRefusedAndTheListFollowsTheSelection) {
    library.NewMainNode("a");
    for (const char* name : {"one", "two"})
        library.NewGroupNode("0D", name);
    library.NewColorNode("0DG2", "red", {});
    library.Tree().Remove("0DG1");
    library.NewMainNode("b");
    library.Tree().Select("0D");
    panes.ShowColorNodes("1D");
    prompts.typed = {"again"};
    EXPECT_THROW(newNodes.NewGroupNode(), RuntimeError);
    EXPECT_EQ(library.GetGroupInMainnode("0D"), std::vector<std::string>{"0DG2"});
}

} // namespace
