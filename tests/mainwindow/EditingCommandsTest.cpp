// Rules: Editing commands
#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;

// A library with the groups "g" (colors a, b) and "h" (none).
class EditingCommandsTest : public testing::Test {
protected:
    EditingCommandsTest() {
        program.files.contents["C:\\a.tnt"] = "\"D#Lib=0D:4\"\r\n\"G#g=0DG1\"\r\n\"G#h=0DG2\"\r\n" +
                                              Color("a", "1") + Color("b", "2");
        program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
        program.application.Start();
        program.Main().tree.NodeClicked("0DG1");
        program.prompts.messages.clear();
    }

    static std::string Color(const std::string& name, const std::string& red) {
        return "\"E#" + name + "=0DG1:" + name + "2\xF7" + red +
               "\xF7"
               "2\xF7"
               "3\xF7"
               "4\xF7"
               "5\xF7"
               "6\xF7"
               "7\xF7"
               "8\xF7"
               "9\"\r\n";
    }
    void Run(int command) { program.Main().frame.RunCommand(command); }
    // Of the error that the command ends with; 0: none.
    int ErrorNumberOf(int command) {
        try {
            Run(command);
            return 0;
        } catch (const RuntimeError& error) {
            return error.Number();
        }
    }
    // Into the first box, as the box itself reports it.
    void Type(const std::string& text) {
        program.view.valueTexts[0] = text;
        program.Main().editor.ValueTextChanged(0, text);
    }

    FakeProgram program;
};

constexpr const char* kLineOfA = "E#a=0DG1:a2,1,2,3,4,5,6,7,8,9";

TEST_F(EditingCommandsTest, CopyPutsOneLineOnTheClipboard) {
    Run(IDM_mnuColorCopy);
    EXPECT_EQ(program.clipboard.text, kLineOfA);
}

TEST_F(EditingCommandsTest, CopyWithNothingSelectedLeavesTheClipboard) {
    program.clipboard.text = "before";
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorCopy);
    EXPECT_EQ(program.clipboard.text, "before");
}

TEST_F(EditingCommandsTest, CutThenPasteMovesAColorAndASecondPasteMakesAnother) {
    Run(IDM_mnuColorCut);
    EXPECT_TRUE(program.prompts.messages.empty()) << "cut never asks";
    EXPECT_EQ(program.view.rowCount, 1);
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.view.rowCount, 1);
    EXPECT_EQ(program.Main().rows.CellText(0, 1), "a");
    EXPECT_EQ(program.Main().rows.CellText(0, 2), "1");
    EXPECT_EQ(program.Main().rows.CellText(0, 10), "9");
    EXPECT_EQ(program.view.valueTexts[0], "1") << "the editor shows what was pasted";
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, CutDeletesOnlyWhenTheColorIsOnTheClipboard) {
    program.clipboard.isBusy = true;
    EXPECT_THROW(Run(IDM_mnuColorCut), RuntimeError);
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, CutDeletesOnlyWhenTheClipboardStillHoldsTheColor) {
    program.clipboard.replacedBy = "of another program";
    EXPECT_THROW(Run(IDM_mnuColorCut), RuntimeError);
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, CutOfAColorThatAPasteWouldRefuseTellsSoAndKeepsIt) {
    program.Main().list.RowLabelEdited(0, "light, warm");
    Run(IDM_mnuColorCut);
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<5> CLIPBOARD", 48, "<98>"}}));
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, CutOfAColorThatAPasteWouldRenameTellsSoAndKeepsIt) {
    for (const char* name : {"a=b", "a=bb:x,1,2,3,4,5,6,7,8", "="}) {
        program.prompts.messages.clear();
        program.Main().list.RowLabelEdited(0, name);
        Run(IDM_mnuColorCut);
        EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<5> CLIPBOARD", 48, "<98>"}}));
        EXPECT_EQ(program.view.rowCount, 2);
        EXPECT_EQ(program.Main().rows.CellText(0, 1), name);
    }
}

TEST_F(EditingCommandsTest, CutOfANameWithOtherSignsOfTheLineGivesItBack) {
    program.Main().list.RowLabelEdited(0, "a:b \u00F7 E#\"");
    Run(IDM_mnuColorCut);
    Run(IDM_mnuColorPaste);
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_EQ(program.Main().rows.CellText(1, 1), "a:b \u00F7 E#\"");
}

TEST_F(EditingCommandsTest, UpdateAfterADeleteKeepsTheRowThatIsSelected) {
    program.clipboard.text = kLineOfA;
    Run(IDM_mnuColorPaste); // a, b, a
    program.Main().list.RowClicked(1);
    Run(IDM_mnuColorDelColor);
    ASSERT_EQ(program.view.selectedRow, 1);
    Type("77");
    Run(IDM_mnuColorUpdateColor);
    EXPECT_EQ(program.view.selectedRow, 1);
    EXPECT_EQ(program.view.valueTexts[0], "77");
    Type("78");
    Run(IDM_mnuColorUpdateColor);
    EXPECT_EQ(program.Main().rows.CellText(0, 2), "1") << "the first color is as it was";
    EXPECT_EQ(program.Main().rows.CellText(1, 2), "78");
}

TEST_F(EditingCommandsTest, CancelledDeleteOfALibraryLeavesItSelectedInsteadOfItsGroup) {
    program.Main().tree.NodeClicked("0DG2");
    program.prompts.answers = {Answer::Cancel};
    Run(IDM_mnuColorDelMainNode);
    EXPECT_EQ(program.view.selectedNode, "0D");
    EXPECT_EQ(program.view.nodes.size(), 3U);
    EXPECT_EQ(program.view.rowCount, 2) << "of its first group";
}

TEST_F(EditingCommandsTest, CutWithNothingSelectedDoesNothing) {
    program.clipboard.text = "before";
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorCut);
    EXPECT_EQ(program.clipboard.text, "before");
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(EditingCommandsTest, PasteTakesWhatItHasReadWhateverComesThen) {
    program.clipboard.text = kLineOfA;
    program.clipboard.textAfterReading = "E#";
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.view.rowCount, 3);
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(EditingCommandsTest, PasteWithTheClipboardHeldChangesNothingAndSaysSoAsCopyDoes) {
    program.clipboard.text = kLineOfA;
    program.clipboard.isBusy = true;
    EXPECT_EQ(ErrorNumberOf(IDM_mnuColorPaste), ErrorNumber::ClipboardUnavailable);
    EXPECT_EQ(ErrorNumberOf(IDM_mnuColorCopy), ErrorNumber::ClipboardUnavailable);
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, ColorThatIsSelectedAfterADeleteIsScrolledIntoView) {
    program.Main().list.RowClicked(1);
    program.view.visibleRow = -1;
    Run(IDM_mnuColorDelColor);
    EXPECT_EQ(program.view.visibleRow, 0);
}

TEST_F(EditingCommandsTest, GroupWhoseRememberedColorWasDeletedShowsItsFirst) {
    program.Main().list.RowClicked(1);
    Run(IDM_mnuColorDelColor);
    program.Main().tree.NodeClicked("0DG2");
    program.Main().tree.NodeClicked("0DG1");
    EXPECT_EQ(program.view.selectedRow, 0);
}

TEST_F(EditingCommandsTest, PasteSelectsTheNewColorInAnEmptyGroup) {
    program.clipboard.text = kLineOfA;
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.view.selectedRow, 0);
}

TEST_F(EditingCommandsTest, PasteSortsTheListOnceAndWithThePastedValues) {
    Run(IDM_mnuColorCopy); // a, red 1
    program.Main().list.ColumnClicked(2);
    program.Main().list.ColumnClicked(2); // b, a
    program.collation.keysMade = 0;
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.collation.keysMade, 3);
    EXPECT_EQ(program.view.selectedRow, 2) << "behind the other color with red 1";
}

TEST_F(EditingCommandsTest, PasteIgnoresForeignTextSilently) {
    for (const char* text : {"", "hello", "e#a=0DG1:a,1"}) {
        program.clipboard.text = text;
        Run(IDM_mnuColorPaste);
    }
    program.clipboard.text.reset();
    Run(IDM_mnuColorPaste);
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, PasteOfABrokenColorShowsItsMessageAndChangesNothing) {
    for (const char* text :
         {"E#", "E#a", "E#a=0DG1", "E#a=0DG1:a,1,2", "E#a=0DG1:a,1,2,3,4,5,6,7,8,9,10"}) {
        program.prompts.messages.clear();
        program.clipboard.text = text;
        Run(IDM_mnuColorPaste);
        EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<5> CLIPBOARD", 48, "<98>"}}))
            << text;
    }
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, CommaInTheNameParses) {
    program.clipboard.text = "E#a, b=0DG1:x,1,2,3,4,5,6,7,8,9";
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.Main().rows.CellText(2, 1), "a, b");
}

TEST_F(EditingCommandsTest, PastedValueThatIsNoNumberIsAnErrorAndChangesNothing) {
    program.clipboard.text = "E#a=0DG1:x,1,2,3,4,5,6,7,8,nine";
    EXPECT_THROW(Run(IDM_mnuColorPaste), RuntimeError);
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, DeletingAColorAsksWithItsSecondName) {
    Run(IDM_mnuColorDelColor);
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<99>\r\n<102>\r\na2", 289, "<98>"}}));
    EXPECT_EQ(program.view.rowCount, 1);
    EXPECT_EQ(program.Main().rows.CellText(0, 1), "b");
    EXPECT_EQ(program.view.colorName, "b") << "the editor shows the row that is selected now";
}

TEST_F(EditingCommandsTest, CancelledDeletionsChangeNothing) {
    for (const int command :
         {IDM_mnuColorDelColor, IDM_mnuColorDelGroup, IDM_mnuColorDelMainNode}) {
        program.prompts.answers = {Answer::Cancel};
        Run(command);
        program.Main().tree.NodeClicked("0DG1");
        EXPECT_EQ(program.view.rowCount, 2);
    }
}

TEST_F(EditingCommandsTest, CancelledDeletionsKeepWhatWasTypedInTheEditor) {
    program.view.selectedRow = 1;
    program.Main().list.RowClicked(1);
    Type("77");
    const auto nodes = program.view.nodes;
    for (const int command :
         {IDM_mnuColorDelColor, IDM_mnuColorDelGroup, IDM_mnuColorDelMainNode}) {
        program.prompts.answers = {Answer::Cancel};
        Run(command);
        EXPECT_EQ(program.view.nodes.size(), nodes.size());
        EXPECT_EQ(program.view.rowCount, 2);
        EXPECT_EQ(program.view.selectedRow, 1);
        EXPECT_EQ(program.view.valueTexts[0], "77");
    }
}

TEST_F(EditingCommandsTest, GroupThatIsGivenUpKeepsWhatWasTypedInTheEditor) {
    Type("77");
    program.prompts.typed = {""};
    Run(IDM_mnuColorNewGroup);
    EXPECT_EQ(program.view.valueTexts[0], "77");
    EXPECT_EQ(program.view.selectedNode, "0D");
}

TEST_F(EditingCommandsTest, PasteIntoAnEmptyTreeGivesItsValuesToTheColorThatIsAskedFor) {
    Run(IDM_mnuColorCopy);
    Run(IDM_mnuColorDelMainNode);
    program.prompts.typed = {"New library", "New group", "New color"};
    Run(IDM_mnuColorPaste);
    ASSERT_EQ(program.view.rowCount, 1);
    EXPECT_EQ(program.Main().rows.CellText(0, 1), "New color");
    EXPECT_EQ(program.Main().rows.CellText(0, 2), "1");
    EXPECT_EQ(program.Main().rows.CellText(0, 10), "9");
    EXPECT_EQ(program.view.valueTexts[8], "9");
}

TEST_F(EditingCommandsTest, PasteIntoALibraryWithoutGroupsGivesItsValuesToTheColorThatIsAskedFor) {
    Run(IDM_mnuColorCopy);
    Run(IDM_mnuColorDelMainNode);
    program.prompts.typed = {"New library", ""};
    Run(IDM_mnuColorNewMainNode);
    program.prompts.typed = {"New group", "New color"};
    Run(IDM_mnuColorPaste);
    ASSERT_EQ(program.view.rowCount, 1);
    EXPECT_EQ(program.Main().rows.CellText(0, 2), "1");
}

TEST_F(EditingCommandsTest, PasteThatIsGivenUpAtAnyQuestionSetsNothing) {
    Run(IDM_mnuColorCopy);
    Run(IDM_mnuColorDelMainNode);
    using Inputs = decltype(program.prompts.typed);
    for (const Inputs& inputs : {Inputs{""}, Inputs{"L1", ""}, Inputs{"L2", "G", ""}}) {
        program.prompts.typed = inputs;
        Run(IDM_mnuColorPaste);
        EXPECT_EQ(program.view.rowCount, 0);
        if (!program.view.nodes.empty())
            Run(IDM_mnuColorDelMainNode);
    }
}

TEST_F(EditingCommandsTest, RefusedCopyOntoAGroupLeavesTreeAndListInAgreement) {
    program.Main().tree.NodeClicked("0DG1");
    program.Main().list.RowLabelEdited(0, "with, comma");
    DragPoint list;
    list.isOverList = true;
    DragPoint group;
    group.node = "0DG2";
    HeldKeys keys;
    keys.ctrl = true;
    program.Main().drag.ListPressed();
    ASSERT_TRUE(program.Main().drag.DragStarted(keys, list));
    program.Main().drag.DragDropped(group);
    EXPECT_EQ(program.view.selectedNode, "0DG1");
    EXPECT_EQ(program.view.rowCount, 2);
    EXPECT_EQ(program.prompts.messages.size(), 1U);
}

TEST_F(EditingCommandsTest, PasteTakesNameAndValuesAndNeitherSecondNameNorGroup) {
    program.clipboard.text = "E#a=b:c,d:x,1,2,3,4,5,6,7,8,9"; // the first colon stands in the name
    Run(IDM_mnuColorPaste);
    ASSERT_EQ(program.view.rowCount, 3);
    Run(IDM_mnuColorCopy);
    EXPECT_EQ(program.clipboard.text, "E#a=0DG1:a,1,2,3,4,5,6,7,8,9");
}

TEST_F(EditingCommandsTest, ColonBeforeTheThirdCharacterBehindTheNameIsNotTheOneOfTheGroup) {
    program.clipboard.text = "E#a=1:x,1,2,3,4,5,6,7,8,9";
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<5> CLIPBOARD", 48, "<98>"}}));
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, NameWithALineBreakIsRefused) {
    program.clipboard.text = "E#a\r\nb=0DG1:x,1,2,3,4,5,6,7,8,9";
    Run(IDM_mnuColorPaste);
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<5> CLIPBOARD", 48, "<98>"}}));
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, ColorMayBePastedWithAnEmptyName) {
    program.clipboard.text = "E#=0DG1:x,1,2,3,4,5,6,7,8,9";
    Run(IDM_mnuColorPaste);
    Run(IDM_mnuColorCopy);
    EXPECT_EQ(program.clipboard.text, "E#=0DG1:,1,2,3,4,5,6,7,8,9");
}

TEST_F(EditingCommandsTest, MovedColorGetsANewKeyInItsGroup) {
    Run(IDM_mnuColorCut);
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorPaste);
    Run(IDM_mnuColorDelGroup);
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<99>\r\n<101>\r\nh\r\na (0DG2E1)\r\n", 289, "<98>"}}));
}

TEST_F(EditingCommandsTest, WhateverWasChangedClosingAndQuittingAskNothing) {
    Run(IDM_mnuColorCopy);
    Run(IDM_mnuColorPaste);
    program.Main().list.RowLabelEdited(0, "renamed");
    Run(IDM_mnuColorCut);
    program.prompts.typed = {"New color"};
    Run(IDM_mnuColorNewColor);
    program.prompts.messages.clear();
    program.prompts.questions.clear();
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuFileClose);
    EXPECT_TRUE(program.view.nodes.empty());
    Run(IDM_mnuQuit);
    EXPECT_TRUE(program.view.isEnded);
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_TRUE(program.prompts.questions.empty());
}

TEST_F(EditingCommandsTest, PastedColorBelongsToTheGroupThatIsSelected) {
    program.clipboard.text = kLineOfA;
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorPaste);
    Run(IDM_mnuColorCopy);
    EXPECT_EQ(program.clipboard.text, "E#a=0DG2:a,1,2,3,4,5,6,7,8,9");
}

TEST_F(EditingCommandsTest, DeletingAGroupAsksOnceAndListsItsColors) {
    Run(IDM_mnuColorDelGroup);
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{
                  {"<99>\r\n<101>\r\ng\r\na2 (0DG1E1)\r\nb2 (0DG1E2)\r\n", 289, "<98>"}}));
    EXPECT_FALSE(program.view.nodes.contains("0DG1"));
    EXPECT_EQ(program.view.selectedNode, "0DG2");
    EXPECT_EQ(program.view.rowCount, 0);
}

TEST_F(EditingCommandsTest, DeletingALibraryAsksExactlyOnce) {
    Run(IDM_mnuColorDelMainNode);
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<99>\r\n<100>\r\nLib\r\n", 289, "<98>"}}));
    EXPECT_TRUE(program.view.nodes.empty());
    EXPECT_EQ(program.view.rowCount, 0);
    EXPECT_TRUE(program.prompts.questions.empty()) << "the empty tree asks for nothing";
}

TEST_F(EditingCommandsTest, OneConfirmationCoversManyGroupsAndColors) {
    for (int group = 3; group <= 6; ++group) {
        program.prompts.typed = {"group", "first color"};
        Run(IDM_mnuColorNewGroup);
        for (int color = 2; color <= 4; ++color) {
            program.prompts.typed = {"color"};
            Run(IDM_mnuColorNewColor);
        }
    }
    Run(IDM_mnuColorDelMainNode);
    EXPECT_EQ(program.prompts.messages.size(), 1U);
    EXPECT_TRUE(program.view.nodes.empty());
    program.prompts.typed = {"Lib", "g", "new"};
    Run(IDM_mnuColorNewMainNode);
    EXPECT_EQ(program.view.rowCount, 1) << "no color of the same keys is left";
    Run(IDM_mnuColorDelColor);
    EXPECT_EQ(program.prompts.messages.size(), 2U) << "and the next deletion asks again";
}

TEST_F(EditingCommandsTest, NothingAsksWithConfirmDelOff) {
    Run(IDM_mnuOptionsConfirmDel);
    Run(IDM_mnuColorDelColor);
    Run(IDM_mnuColorDelGroup);
    Run(IDM_mnuColorDelMainNode);
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_TRUE(program.view.nodes.empty());
}

TEST_F(EditingCommandsTest, DeletingWithNothingSuitableSelectedDoesNothing) {
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuColorDelGroup);
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorDelColor);
    EXPECT_TRUE(program.prompts.messages.empty());
    Run(IDM_mnuColorDelMainNode);
    program.prompts.messages.clear();
    Run(IDM_mnuColorDelMainNode);
    Run(IDM_mnuColorDelGroup);
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(EditingCommandsTest, CloseRemovesTheSelectedGroupAloneWithoutAsking) {
    Run(IDM_mnuFileClose);
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_FALSE(program.view.nodes.contains("0DG1"));
    EXPECT_TRUE(program.view.nodes.contains("0DG2"));
}

TEST_F(EditingCommandsTest, CloseOfTheLastLibraryLeavesAnEmptyTreeAndSaveDoesNothing) {
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuFileClose);
    EXPECT_TRUE(program.view.nodes.empty());
    Run(IDM_mnuFileSave);
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_TRUE(program.prompts.fileRequests.empty());
}

TEST_F(EditingCommandsTest, RenameStartsTheEditOfTheSelectedNode) {
    Run(IDM_mnuColorRenameNode);
    EXPECT_EQ(program.view.editedNode, "0DG1");
}

TEST_F(EditingCommandsTest, RenameInTheListStartsTheEditOfTheSelectedRow) {
    program.Main().list.RowClicked(1);
    program.Main().list.RowEditRequested();
    EXPECT_EQ(program.view.editedRow, 1);
}

TEST_F(EditingCommandsTest, CancelledDeletionOfALibraryShowsWhatIsSelectedThen) {
    program.Main().tree.NodeClicked("0DG2");
    program.prompts.answers = {Answer::Cancel};
    Run(IDM_mnuColorDelMainNode);
    EXPECT_EQ(program.view.selectedNode, "0D");
    EXPECT_EQ(program.view.rowCount, 2) << "the first group of the library";
}

TEST_F(EditingCommandsTest, CancelledGroupShowsWhatIsSelectedThen) {
    program.Main().tree.NodeClicked("0DG2");
    Run(IDM_mnuColorNewGroup); // cancelled
    EXPECT_EQ(program.view.selectedNode, "0D");
    EXPECT_EQ(program.view.rowCount, 2);
}

TEST_F(EditingCommandsTest, NewColorInAnEmptyTreeAsksLibraryGroupAndColorAndNothingElse) {
    Run(IDM_mnuColorDelMainNode);
    program.prompts.messages.clear();
    program.prompts.typed = {"L", "G", "C", "one too many"};
    Run(IDM_mnuColorNewColor);
    std::vector<std::string> asked;
    for (const FakePrompts::Question& question : program.prompts.questions)
        asked.push_back(question.prompt + question.preset);
    EXPECT_EQ(asked,
              (std::vector<std::string>{"<50>New Node0", "<51>New Group1", "<52>New Color1"}));
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_EQ(program.view.rowCount, 1);
}

TEST_F(EditingCommandsTest, GroupWhoseNumberIsTakenIsRefusedAndNothingChanges) {
    Run(IDM_mnuColorDelGroup); // of two groups the second stays, so the next number is its own
    program.Main().tree.NodeClicked("0DG2");
    const auto nodes = program.view.nodes;
    program.prompts.typed = {"again", "a color"};
    EXPECT_EQ(ErrorNumberOf(IDM_mnuColorNewGroup), ErrorNumber::DuplicateKey);
    EXPECT_EQ(program.prompts.questions.size(), 1U) << "no color is asked for";
    EXPECT_EQ(program.view.nodes, nodes);
    EXPECT_EQ(program.view.selectedNode, "0D");
    EXPECT_EQ(program.view.rowCount, 0);
    Run(IDM_mnuFileSave);
    EXPECT_EQ(program.files.contents.at("C:\\a.tnt"), "\"D#Lib=0D:1\"\r\n\"G#h=0DG2\"\r\n");
}

TEST_F(EditingCommandsTest, CutRestoresConfirmDelAlsoWhenTheClipboardIsBusy) {
    program.clipboard.isBusy = true;
    EXPECT_THROW(Run(IDM_mnuColorCut), RuntimeError);
    program.clipboard.isBusy = false;
    Run(IDM_mnuColorDelColor);
    EXPECT_EQ(program.prompts.messages.size(), 1U);
}

TEST_F(EditingCommandsTest, CutRestoresConfirmDelAlsoWhenTheDeletionFails) {
    program.view.rowsChangeFails = true;
    EXPECT_THROW(Run(IDM_mnuColorCut), RuntimeError);
    program.view.rowsChangeFails = false;
    EXPECT_TRUE(program.prompts.messages.empty());
    program.Main().tree.NodeClicked("0DG1");
    Run(IDM_mnuColorDelColor);
    EXPECT_EQ(program.prompts.messages.size(), 1U) << "deleting asks again";
}

TEST_F(EditingCommandsTest, RepaintOfTheWindowGivesTheSwatchItsColorOfText) {
    program.view.smallSwatchText = 0x123456;
    program.Main().editor.Repainted();
    EXPECT_EQ(program.view.smallSwatchText, program.view.smallSwatch ^ 0xFFFFFU);
}

} // namespace
