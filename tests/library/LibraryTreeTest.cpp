// Rules: Library model
#include "library/LibraryTree.h"

#include "common/RuntimeError.h"
#include "tests/fakes/FakeMainView.h"

#include <gtest/gtest.h>

namespace {

LibraryTree TwoLibraries() {
    LibraryTree tree;
    tree.AddMainNode("0D", "first");
    tree.AddGroup("0D", "0DG1", "one");
    tree.AddGroup("0D", "0DG2", "two");
    tree.AddMainNode("1D", "second");
    return tree;
}

TEST(LibraryTree, DuplicateKeyIsRefusedAndChangesNothing) {
    LibraryTree tree = TwoLibraries();
    EXPECT_THROW(tree.AddGroup("0D", "0DG2", "again"), RuntimeError);
    EXPECT_EQ(tree.At("0D").children, (std::vector<std::string>{"0DG1", "0DG2"}));
    EXPECT_EQ(tree.At("0DG2").text, "two");
}

TEST(LibraryTree, RemovingAMainNodeRemovesItsGroups) {
    LibraryTree tree = TwoLibraries();
    tree.Remove("0D");
    EXPECT_EQ(tree.Find("0DG1"), nullptr);
    EXPECT_EQ(tree.MainNodes(), std::vector<std::string>{"1D"});
}

TEST(LibraryTree, SelectionMovesToTheNextSiblingThenThePreviousThenTheParentThenNothing) {
    LibraryTree tree = TwoLibraries();
    tree.Select("0DG1");
    tree.Remove("0DG1");
    EXPECT_EQ(tree.Selected(), "0DG2");
    tree.Remove("0DG2");
    EXPECT_EQ(tree.Selected(), "0D");
    tree.Remove("0D");
    EXPECT_EQ(tree.Selected(), "1D");
    tree.Remove("1D");
    EXPECT_EQ(tree.Selected(), "");
}

TEST(LibraryTree, RemovingALibraryTakesTheSelectionOfItsGroupAlong) {
    LibraryTree tree = TwoLibraries();
    tree.Select("0DG2");
    tree.Remove("0D");
    EXPECT_EQ(tree.Selected(), "1D");
}

TEST(LibraryTree, ExpandedNodeIsExpandedAgainWhenItGetsItsFirstChild) {
    FakeMainView view;
    LibraryTree tree;
    tree.Observe(&view);
    tree.AddMainNode("0D", "first");
    tree.Expand("0D");
    view.expanded.clear();
    tree.AddGroup("0D", "0DG1", "one");
    EXPECT_TRUE(view.expanded.contains("0D"));
    view.expanded.clear();
    tree.AddGroup("0D", "0DG2", "two");
    EXPECT_FALSE(view.expanded.contains("0D")) << "the user may have collapsed it";
}

TEST(LibraryTree, SelectionElsewhereStays) {
    LibraryTree tree = TwoLibraries();
    tree.Select("1D");
    tree.Remove("0D");
    EXPECT_EQ(tree.Selected(), "1D");
}

TEST(LibraryTree, GroupsAreToldFromLibrariesAndFromWhatIsNotThere) {
    const LibraryTree tree = TwoLibraries();
    EXPECT_TRUE(tree.IsGroup("0DG1"));
    EXPECT_FALSE(tree.IsGroup("0D"));
    EXPECT_FALSE(tree.IsGroup("7DG1"));
    EXPECT_FALSE(tree.IsGroup(""));
}

} // namespace
