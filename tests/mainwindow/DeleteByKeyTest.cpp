// Rules: Editing commands
#include "mainwindow/EditingCommands.h"

#include "tests/fakes/LibraryOnFakes.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

// The libraries 0D with the groups "g" (colors a, b, c) and "h" (x), and 1D with "o" (y).  The
// group "g" is shown, its color a is selected.
class DeleteByKey : public testing::Test, protected LibraryOnFakes {
protected:
    DeleteByKey() {
        editor.ShowInitialColor();
        library.NewMainNode("Lib");
        library.NewGroupNode("0D", "g");
        library.NewGroupNode("0D", "h");
        library.NewMainNode("Other");
        library.NewGroupNode("1D", "o");
        for (const auto& [group, name] :
             {std::pair{"0DG1", "a"}, std::pair{"0DG1", "b"}, std::pair{"0DG1", "c"},
              std::pair{"0DG2", "x"}, std::pair{"1DG1", "y"}})
            library.NewColorNode(group, name, {});
        panes.NodeClicked("0DG1");
        panes.RowClicked(0);
    }

    [[nodiscard]] Names NamesInTable() const {
        Names names;
        for (int index = 1; index <= library.Colors().UpperBound(); ++index)
            names.push_back(library.Colors().At(index).name);
        return names;
    }
};

TEST_F(DeleteByKey, RecordOfTheKeyGoesButTheSelectedRowLeavesTheList) {
    editing.DeleteColor("0DG1E3");
    EXPECT_EQ(NamesInTable(), (Names{"a", "b", "x", "y"}));
    ASSERT_EQ(list.RowCount(), 2);
    EXPECT_EQ((Names{list.KeyOfRow(0), list.KeyOfRow(1)}), (Names{"0DG1E2", "0DG1E3"}))
        << "a's row, on purpose";
    EXPECT_EQ(list.CellText(1, 1), "") << "a row without a record shows nothing";
}

TEST_F(DeleteByKey, UnknownColorChangesNothing) {
    editing.DeleteColor("0DG1E9");
    EXPECT_EQ(NamesInTable().size(), 5U);
    EXPECT_EQ(list.RowCount(), 3);
    EXPECT_TRUE(prompts.messages.empty());
}

TEST_F(DeleteByKey, LaterRecordsMoveDownByOne) {
    editing.DeleteColor("0DG1E2");
    EXPECT_EQ(library.GetColornodeIndex("0DG1E3"), 2);
    EXPECT_EQ(library.GetColornodeIndex("1DG1E1"), 4);
    EXPECT_EQ(library.Colors().UpperBound(), 4);
}

TEST_F(DeleteByKey, OtherGroupGoesWithItsColorsAndTheListStaysAsItWas) {
    editing.DeleteGroup("0DG2");
    EXPECT_EQ(NamesInTable(), (Names{"a", "b", "c", "y"}));
    EXPECT_EQ(library.Tree().Find("0DG2"), nullptr);
    EXPECT_EQ(library.Tree().Selected(), "0DG1");
    EXPECT_EQ(list.RowCount(), 3);
    EXPECT_EQ(prompts.messages.size(), 1U);
}

TEST_F(DeleteByKey, NothingIsDeletedWhileNothingIsSelectedInTheTree) {
    editing.DeleteMainNode("0D");
    editing.DeleteMainNode("1D");
    prompts.messages.clear();
    editing.DeleteGroup("0DG2");
    editing.DeleteMainNode();
    EXPECT_TRUE(prompts.messages.empty());
}

TEST_F(DeleteByKey, OtherLibraryGoesWithEverythingInItAndTheSelectionStays) {
    editing.DeleteMainNode("1D");
    EXPECT_EQ(NamesInTable(), (Names{"a", "b", "c", "x"}));
    EXPECT_EQ(library.Tree().Find("1D"), nullptr);
    EXPECT_EQ(library.Tree().Find("1DG1"), nullptr);
    EXPECT_EQ(library.Tree().Selected(), "0DG1");
    EXPECT_EQ(prompts.messages.size(), 1U);
}

TEST_F(DeleteByKey, LibraryOfASelectedGroupIsSelectedBeforeItIsAskedFor) {
    prompts.answers = {Answer::Cancel};
    editing.DeleteMainNode();
    EXPECT_EQ(library.Tree().Selected(), "0D");
    EXPECT_NE(library.Tree().Find("0D"), nullptr);
}

TEST_F(DeleteByKey, SettingIsTheSameAfterEveryDeletion) {
    for (const bool confirms : {true, false}) {
        settings.confirmDel = confirms;
        editing.Cut();
        EXPECT_EQ(settings.confirmDel, confirms);
        editing.DeleteGroup();
        EXPECT_EQ(settings.confirmDel, confirms);
        editing.DeleteMainNode();
        EXPECT_EQ(settings.confirmDel, confirms);
    }
}

} // namespace
