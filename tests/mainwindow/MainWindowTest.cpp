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
    void Drop() { program.Main().FilesDropped({kFile}); }

    FakeProgram program{"default"};
};

TEST_F(MainWindowTest, DroppedLibraryOpensAsWithOpen) {
    Drop();
    EXPECT_EQ(program.view.nodes.at("0D"), "Dropped");
    EXPECT_EQ(program.prompts.messages.size(), 1U);
}

TEST_F(MainWindowTest, NameThatIsBeingTypedIsTakenBeforeACommandRuns) {
    Drop();
    program.view.openEdit = [this] { program.Main().NodeLabelEdited("0DG1", "typed"); };
    program.Main().RunCommand(IDM_mnuFileSave);
    EXPECT_EQ(program.files.contents[kFile], "\"D#Dropped=0D:1\"\r\n\"G#typed=0DG1\"\r\n");
}

TEST_F(MainWindowTest, NameThatIsBeingTypedIsTakenBeforeADroppedLibraryOpens) {
    program.view.openEdit = [this] { EXPECT_TRUE(program.view.nodes.empty()); };
    Drop();
    EXPECT_FALSE(program.view.openEdit) << "the edit has ended";
    EXPECT_EQ(program.view.nodes.at("0D"), "Dropped");
}

TEST_F(MainWindowTest, FilesDroppedDuringAWalkAreRefusedSilently) {
    int rounds = 0;
    program.events.onEvents = [&] {
        ++rounds;
        Drop();
    };
    program.Main().RunCommand(IDM_mnuSWXClearColorPart);
    EXPECT_GT(rounds, 0);
    EXPECT_TRUE(program.view.nodes.empty());
}

} // namespace
