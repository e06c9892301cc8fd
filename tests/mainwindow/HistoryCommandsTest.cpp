// Rules: Undo and redo
#include "mainwindow/HistoryCommands.h"

#include "mainwindow/CommandTable.h"
#include "mainwindow/MenuCaption.h"
#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"

#include <gtest/gtest.h>

namespace {

// A library with the group "g" and its colors a and b; a is selected.
class HistoryCommandsTest : public testing::Test {
protected:
    HistoryCommandsTest() {
        program.files.contents["C:\\a.tnt"] =
            "\"D#Lib=0D:4\"\r\n\"G#g=0DG1\"\r\n\"G#h=0DG2\"\r\n" + Color("a") + Color("b");
        program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
        program.registry.SetText(FakeProgram::Setting("ConfirmDel"), "0");
        program.application.Start();
        program.Main().tree.NodeClicked("0DG1");
        program.prompts.messages.clear();
    }

    static std::string Color(const std::string& name) {
        std::string line = "\"E#" + name + "=0DG1:" + name;
        for (int value = 1; value <= 9; ++value)
            line += "\xF7" + std::to_string(value);
        return line + "\"\r\n";
    }
    void Run(int command) { program.Main().frame.RunCommand(command); }
    [[nodiscard]] std::vector<std::string> Rows() {
        std::vector<std::string> names;
        for (int row = 0; row < program.view.rowCount; ++row)
            names.push_back(program.Main().rows.CellText(row, 1));
        return names;
    }
    [[nodiscard]] std::string Text(int command) { return program.view.menuTexts[command]; }
    [[nodiscard]] bool IsEnabled(int command) { return program.view.menuEnabled[command]; }

    FakeProgram program;
};

using Names = std::vector<std::string>;

TEST_F(HistoryCommandsTest, EntriesAreGreyWithTheirOwnCaptionsWhileThereIsNoStep) {
    for (const int command : {IDM_mnuEditUndo, IDM_mnuEditRedo}) {
        EXPECT_FALSE(IsEnabled(command));
        EXPECT_EQ(Text(command), "");
        Run(command);
    }
    EXPECT_EQ(Rows(), (Names{"a", "b"}));
    EXPECT_EQ(program.view.infoPanel, "");
}

TEST_F(HistoryCommandsTest, EntriesNameTheStepAndTheStatusPanelSaysWhatWasDone) {
    Run(IDM_mnuColorDelColor);
    ASSERT_EQ(Rows(), (Names{"b"}));
    EXPECT_TRUE(IsEnabled(IDM_mnuEditUndo));
    EXPECT_FALSE(IsEnabled(IDM_mnuEditRedo));
    EXPECT_EQ(Text(IDM_mnuEditUndo), "&Rückgängig: Farbe löschen");
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(Rows(), (Names{"a", "b"}));
    EXPECT_EQ(program.view.selectedRow, 0);
    EXPECT_EQ(program.view.infoPanel, "Rückgängig gemacht: Farbe löschen");
    EXPECT_FALSE(IsEnabled(IDM_mnuEditUndo));
    EXPECT_EQ(Text(IDM_mnuEditRedo), "&Wiederholen: Farbe löschen");
    Run(IDM_mnuEditRedo);
    EXPECT_EQ(Rows(), (Names{"b"}));
    EXPECT_EQ(program.view.infoPanel, "Wiederholt: Farbe löschen");
}

TEST_F(HistoryCommandsTest, AnotherStepDropsThoseThatWereTakenBackAndALookDoesNot) {
    Run(IDM_mnuColorDelColor);
    Run(IDM_mnuEditUndo);
    program.Main().list.RowClicked(1);
    EXPECT_TRUE(IsEnabled(IDM_mnuEditRedo));
    program.Main().list.RowLabelEdited(1, "renamed");
    EXPECT_FALSE(IsEnabled(IDM_mnuEditRedo));
    EXPECT_EQ(Text(IDM_mnuEditUndo), "&Rückgängig: <174>");
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(Rows(), (Names{"a", "b"}));
}

TEST_F(HistoryCommandsTest, ClosedLibraryComesBackWithItsFileAndRememberedColors) {
    program.Main().list.RowClicked(1);
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuFileClose);
    EXPECT_TRUE(program.view.nodes.empty());
    EXPECT_EQ(Text(IDM_mnuEditUndo), "&Rückgängig: Schließen");
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(program.view.selectedNode, "0D");
    EXPECT_EQ(program.view.selectedRow, 1);
    program.files.contents.erase("C:\\a.tnt");
    Run(IDM_mnuFileSave);
    EXPECT_TRUE(program.files.contents.contains("C:\\a.tnt"));
}

TEST_F(HistoryCommandsTest, DragIsOneStep) {
    const auto drop = [&](const HeldKeys& keys) {
        DragPoint onGroup;
        onGroup.node = "0DG2";
        program.Main().drag.ListPressed();
        static_cast<void>(program.Main().drag.DragStarted(keys, {}));
        program.Main().drag.DragDropped(onGroup);
    };
    drop({});
    EXPECT_EQ(Text(IDM_mnuEditUndo), "&Rückgängig: <175>");
    EXPECT_EQ(program.view.selectedNode, "0DG2");
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(Rows(), (Names{"a", "b"})) << "of the group that it came from";
    EXPECT_FALSE(IsEnabled(IDM_mnuEditUndo));
    drop({.ctrl = true});
    EXPECT_EQ(Text(IDM_mnuEditUndo), "&Rückgängig: <176>");
}

TEST_F(HistoryCommandsTest, OpeningAFileIsNoStepAndDropsNone) {
    Run(IDM_mnuColorDelColor);
    Run(IDM_mnuEditUndo);
    program.prompts.chosenFiles = {"C:\\a.tnt"};
    program.prompts.answers = {Answer::No};
    Run(IDM_mnuFileOpen);
    EXPECT_FALSE(IsEnabled(IDM_mnuEditUndo));
    EXPECT_TRUE(IsEnabled(IDM_mnuEditRedo));
}

TEST_F(HistoryCommandsTest, RefusedAndCancelledCommandsAreNoSteps) {
    Run(IDM_mnuColorNewGroup); // cancelled
    program.clipboard.text = "no color";
    Run(IDM_mnuColorPaste);
    Run(IDM_mnuSWXSetColor); // SolidWorks has an undo of its own
    EXPECT_FALSE(IsEnabled(IDM_mnuEditUndo));
}

TEST_F(HistoryCommandsTest, ImportedStandardColorsAreOneStep) {
    Run(IDM_mnuSWXGetStandardColor);
    ASSERT_GT(program.view.rowCount, 2);
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(program.view.nodes.size(), 3U);
    EXPECT_EQ(program.view.selectedNode, "0DG1");
    EXPECT_EQ(Rows(), (Names{"a", "b"}));
    EXPECT_FALSE(IsEnabled(IDM_mnuEditUndo));
    program.files.contents.erase("C:\\a.tnt");
    Run(IDM_mnuFileSave);
    EXPECT_TRUE(program.files.contents.contains("C:\\a.tnt")) << "it has its file again";
}

TEST_F(HistoryCommandsTest, CommandThatChangesNothingIsNoStepAndDropsNone) {
    Run(IDM_mnuColorDelColor);
    Run(IDM_mnuEditUndo);
    Run(IDM_mnuColorUpdateColor);
    program.Main().list.RowLabelEdited(0, "a");
    program.Main().tree.NodeLabelEdited("0DG1", "g");
    EXPECT_FALSE(IsEnabled(IDM_mnuEditUndo));
    EXPECT_TRUE(IsEnabled(IDM_mnuEditRedo));
}

// The main window lets the user look around while SolidWorks is asked.
TEST_F(HistoryCommandsTest, LooksDuringACommandThatIsStoppedAreNoStep) {
    Run(IDM_mnuColorDelColor);
    Run(IDM_mnuEditUndo);
    bool isLooked = false;
    program.events.onEvents = [&] {
        program.Main().list.RowClicked(1);
        program.Main().frame.EscapePressed();
        isLooked = true;
    };
    Run(IDM_mnuSWXGetStandardColor);
    ASSERT_TRUE(isLooked);
    ASSERT_EQ(program.view.nodes.size(), 3U) << "stopped before the first color";
    EXPECT_TRUE(IsEnabled(IDM_mnuEditRedo));
    EXPECT_FALSE(IsEnabled(IDM_mnuEditUndo));
}

TEST_F(HistoryCommandsTest, FileOfALaterSaveStaysThroughUndoAndRedo) {
    Run(IDM_mnuSWXGetStandardColor);
    program.prompts.chosenFiles = {"C:\a.tnt"};
    Run(IDM_mnuFileSaveAs);
    Run(IDM_mnuEditUndo);
    Run(IDM_mnuEditRedo);
    program.files.contents.erase("C:\a.tnt");
    Run(IDM_mnuFileSave);
    EXPECT_TRUE(program.files.contents.contains("C:\a.tnt"));
}

TEST_F(HistoryCommandsTest, UpdatedColorShowsItsOldValuesAgain) {
    program.Main().editor.ValueTextChanged(0, "200");
    Run(IDM_mnuColorUpdateColor);
    EXPECT_EQ(program.Main().rows.CellText(0, 2), "200");
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(program.Main().rows.CellText(0, 2), "1");
    EXPECT_EQ(program.view.valueTexts[0], "1");
}

TEST(CommandTable, WhatChangesTheLibrariesIsAStepAndWhatUndoDoesIsNone) {
    for (const MenuRow& row : MenuRows()) {
        const std::string name = row.name;
        const bool changes = name.starts_with("mnuColorNew") || name.starts_with("mnuColorDel") ||
                             name == "mnuFileNew" || name == "mnuFileClose" ||
                             name == "mnuColorCut" || name == "mnuColorPaste" ||
                             name == "mnuColorUpdateColor" || name == "mnuSWXNewColorUpdate" ||
                             name == "mnuSWXGetStandardColor" || name == "mnuFileImport" ||
                             name == "mnuFileImportGroups";
        EXPECT_EQ(row.isStep, changes) << name;
    }
}

TEST(MenuCaption, IsPlainWithoutAccessKeyAndDots) {
    EXPECT_EQ(PlainCaption("C&hoose color value ..."), "Choose color value");
    EXPECT_EQ(PlainCaption("A && B"), "A & B");
    EXPECT_EQ(PlainCaption("End&"), "End");
    EXPECT_EQ(PlainCaption(""), "");
}

} // namespace
