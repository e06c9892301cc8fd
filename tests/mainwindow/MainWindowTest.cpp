// Rules: Tree and list views
#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kFile = "C:\\dropped.tnt";

class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() {
        program.files.contents[kFile] = "\"D#Dropped=0D:1\"\r\n\"G#g=0DG1\"\r\n";
        program.prompts.answers = {Answer::No};
        program.application.Start();
    }
    void Drop() { program.Main().frame.FilesDropped({kFile}); }

    FakeProgram program{"default"};
};

TEST_F(MainWindowTest, DroppedLibraryOpensAsWithOpen) {
    Drop();
    EXPECT_EQ(program.view.nodes.at("0D"), "Dropped");
    EXPECT_EQ(program.prompts.messages.size(), 1U);
}

TEST_F(MainWindowTest, StatusPanelIsEmptiedWhenAFileCommandBegins) {
    for (const int command : {IDM_mnuFileNew, IDM_mnuFileOpen, IDM_mnuFileSaveAs, IDM_mnuFileClose,
                              IDM_mnuFileCancelAutoload, IDM_mnuFileSave}) {
        program.prompts.answers = {Answer::No};
        Drop();
        EXPECT_EQ(program.view.infoPanel, "Okay dropped.tnt");
        if (command == IDM_mnuFileSave)
            program.files.locked[kFile] = true; // so that it has nothing to tell there
        program.prompts.answers = {Answer::No};
        program.Main().frame.RunCommand(command);
        EXPECT_EQ(program.view.infoPanel, "") << command;
    }
}

TEST_F(MainWindowTest, StatusPanelIsEmptiedWhenFilesAreDropped) {
    Drop();
    program.Main().frame.FilesDropped({"C:\\none.tnt"});
    EXPECT_EQ(program.view.infoPanel, "");
}

TEST_F(MainWindowTest, NameThatIsBeingTypedIsTakenBeforeACommandRuns) {
    Drop();
    program.view.openEdit = [this] { program.Main().tree.NodeLabelEdited("0DG1", "typed"); };
    program.Main().frame.RunCommand(IDM_mnuFileSave);
    EXPECT_EQ(program.files.contents[kFile], "\"D#Dropped=0D:1\"\r\n\"G#typed=0DG1\"\r\n");
}

TEST_F(MainWindowTest, NameThatIsBeingTypedIsTakenBeforeTheRowsAreSortedOrOfAnotherGroup) {
    Drop();
    bool isReported = false;
    for (const auto& act :
         std::vector<std::function<void()>>{[this] { program.Main().list.ColumnClicked(1); },
                                            [this] { program.Main().tree.NodeClicked("0DG1"); }}) {
        isReported = false;
        program.view.rowCount = -1;
        program.view.openEdit = [&] {
            isReported = true;
            EXPECT_EQ(program.view.rowCount, -1) << "the rows are still there";
        };
        act();
        EXPECT_TRUE(isReported);
        EXPECT_NE(program.view.rowCount, -1);
    }
}

TEST_F(MainWindowTest, SortedColumnIsMarkedOnceSomethingIsSorted) {
    EXPECT_EQ(program.view.sortMark, "");
    program.Main().list.ColumnClicked(1);
    EXPECT_EQ(program.view.sortMark, "1 down");
    program.Main().list.ColumnClicked(1);
    EXPECT_EQ(program.view.sortMark, "1 up");
    program.Main().list.ColumnClicked(3);
    EXPECT_EQ(program.view.sortMark, "3 up");
}

TEST_F(MainWindowTest, NameThatIsBeingTypedIsTakenBeforeADroppedLibraryOpens) {
    program.view.openEdit = [this] { EXPECT_TRUE(program.view.nodes.empty()); };
    Drop();
    EXPECT_FALSE(program.view.openEdit) << "the edit has ended";
    EXPECT_EQ(program.view.nodes.at("0D"), "Dropped");
}

// One value of the second color is out of range; the form tells what the command throws.
TEST_F(MainWindowTest, OpenedFileWithOneBrokenValueKeepsWhatStoodBeforeItAndTells) {
    const auto color = [](const std::string& name, const std::string& red) {
        std::string line = "\"E#" + name + "=0DG1:" + name + "\xF7" + red;
        for (int value = 2; value <= 9; ++value)
            line += "\xF7" + std::to_string(value);
        return line + "\"\r\n";
    };
    program.files.contents[kFile] = "\"D#Broken=0D:4\"\r\n\"G#g=0DG1\"\r\n" + color("a", "1") +
                                    color("b", "99999") + color("c", "3");
    program.prompts.chosenFiles = {kFile};
    try {
        program.Main().frame.RunCommand(IDM_mnuFileOpen);
        FAIL() << "nothing is told";
    } catch (const RuntimeError& error) {
        program.errors.ReportError(error);
    }
    ASSERT_EQ(program.prompts.messages.size(), 1U) << "and no question about every start";
    EXPECT_EQ(program.prompts.messages[0].prompt,
              "<3>\r\nThis number is not between -32768 and 32767: 99999\r\nFile: " +
                  std::string(kFile) + ", line 4");
    EXPECT_EQ(program.view.nodes.at("0D"), "Broken");
    ASSERT_EQ(program.view.rowCount, 1);
    EXPECT_EQ(program.Main().rows.CellText(0, 1), "a");
    EXPECT_EQ(program.view.valueTexts[0], "1");
}

TEST_F(MainWindowTest, FilesDroppedDuringAWalkAreRefusedSilently) {
    int rounds = 0;
    program.events.onEvents = [&] {
        ++rounds;
        Drop();
    };
    program.Main().frame.RunCommand(IDM_mnuSWXClearColorPart);
    EXPECT_GT(rounds, 0);
    EXPECT_TRUE(program.view.nodes.empty());
}

} // namespace
