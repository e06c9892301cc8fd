// Rules: Recovery
// The whole program on fakes: what is kept, what the user is told, what comes back.

#include "common/InfoTextNumber.h"
#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"
#include "tests/fakes/LibraryText.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

class RecoverCommandsTest : public testing::Test {
protected:
    RecoverCommandsTest() { program.application.Start(); }

    void Run(int command) { program.Main().frame.RunCommand(command); }
    void NewLibrary(const std::string& name) {
        program.prompts.typed = {name};
        Run(IDM_mnuColorNewMainNode);
        program.prompts.typed = {"group"};
        Run(IDM_mnuColorNewGroup);
    }
    void SecondPasses() {
        program.Main().frame.SecondPassed();
        program.background.Wait();
        program.Main().frame.SecondPassed();
    }
    [[nodiscard]] std::size_t KeptFiles() {
        return program.files.FileNamesIn(FakeProgram::kRecoveryFolder).size();
    }
    // What an earlier run of the program has left.
    void Leave(const std::string& id, const std::string& name, const std::string& file) {
        const std::string path = std::string(FakeProgram::kRecoveryFolder) + "\\" + id;
        program.files.contents[path + ".tnt"] = "\"D#" + name + "=0D:1\"\r\n\"G#g=0DG1\"\r\n";
        program.files.contents[path + ".txt"] =
            name + "\r\n" + file + "\r\n2024-03-0" + id.back() + " 10:00:00\r\n7\r\n";
    }

    FakeProgram program;
};

TEST_F(RecoverCommandsTest, NewLibraryIsKeptWithinASecond) {
    NewLibrary("mine");
    EXPECT_EQ(KeptFiles(), 0U);
    SecondPasses();
    EXPECT_EQ(KeptFiles(), 2U);
}

TEST_F(RecoverCommandsTest, QuitKeepsWhatIsNotSaved) {
    NewLibrary("mine");
    Run(IDM_mnuQuit);
    EXPECT_EQ(KeptFiles(), 2U);
}

TEST_F(RecoverCommandsTest, EndOfTheSessionKeepsWhatIsNotSaved) {
    NewLibrary("mine");
    program.Main().frame.SessionEnding();
    EXPECT_EQ(KeptFiles(), 2U);
}

TEST_F(RecoverCommandsTest, CloseKeepsWhatIsNotSaved) {
    NewLibrary("mine");
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuFileClose);
    EXPECT_EQ(program.view.nodes.size(), 0U);
    SecondPasses();
    program.recover.work = [] { return std::vector<int>(); };
    Run(IDM_mnuFileRecover);
    ASSERT_EQ(program.recover.rows.size(), 1U);
    EXPECT_EQ(program.recover.rows[0][0], "mine");
}

TEST_F(RecoverCommandsTest, LibraryWhoseLastGroupIsClosedStaysKeptAsItWasBefore) {
    NewLibrary("mine");
    SecondPasses();
    Run(IDM_mnuFileClose); // its group
    SecondPasses();
    Run(IDM_mnuQuit);
    EXPECT_EQ(KeptFiles(), 2U);
}

TEST_F(RecoverCommandsTest, StartTellsOfWhatCanBeRecovered) {
    EXPECT_EQ(program.view.infoPanel, "");
    FakeProgram next;
    next.files.contents = program.files.contents;
    Leave("gone-1", "Reds", "C:\\reds.tnt");
    next.files.contents = program.files.contents;
    next.application.Start();
    EXPECT_EQ(next.view.infoPanel,
              "Nicht gespeicherte Bibliotheken: 1  -  Datei > Wiederherstellen ...");
}

TEST_F(RecoverCommandsTest, StartTellsOfACrashOnce) {
    FakeProgram next;
    const std::string folder = FakeProgram::kRecoveryFolder;
    next.files.contents[folder + "\\crash 20240102 030405 7.new"] = "x";
    next.application.Start();
    EXPECT_EQ(next.view.infoPanel, "Das Programm wurde unerwartet beendet. Bericht: " + folder +
                                       "\\crash 20240102 030405 7.txt");
    FakeProgram last;
    last.files.contents = next.files.contents;
    last.application.Start();
    EXPECT_EQ(last.view.infoPanel, "");
}

TEST_F(RecoverCommandsTest, WindowListsTheLatestFirst) {
    Leave("gone-1", "Reds", "C:\\reds.tnt");
    Leave("gone-2", "Blues", "");
    program.recover.work = [] { return std::vector<int>(); };
    Run(IDM_mnuFileRecover);
    EXPECT_EQ(program.recover.caption, "<180>");
    EXPECT_EQ(program.recover.columns, (RecoverRow{"<182>", "<183>", "<184>", "<185>"}));
    EXPECT_EQ(program.recover.rows,
              (std::vector<RecoverRow>{{"Blues", "<186>", "2024-03-02 10:00:00", "7"},
                                       {"Reds", "C:\\reds.tnt", "2024-03-01 10:00:00", "7"}}));
}

TEST_F(RecoverCommandsTest, OpenedLibraryIsWhatItWas) {
    Leave("gone-1", "Reds", "C:\\reds.tnt");
    program.files.contents["C:\\reds.tnt"] = "from someone else";
    program.recover.work = [] { return std::vector{0}; };
    Run(IDM_mnuFileRecover);
    EXPECT_EQ(program.view.nodes["0D"], "Reds");
    EXPECT_EQ(program.view.infoPanel, "Okay Reds");
    SecondPasses(); // it is kept under a name of this run, and only once
    EXPECT_EQ(program.files.FileNamesIn(FakeProgram::kRecoveryFolder),
              (std::vector<std::string>{"own-1.tnt", "own-1.txt"}));
    Run(IDM_mnuFileSave);
    EXPECT_EQ(program.files.contents["C:\\reds.tnt"], "\"D#Reds=0D:1\"\r\n\"G#g=0DG1\"\r\n");
    EXPECT_TRUE(program.files.contents.contains("C:\\reds (kept 2024-03-09 080507).tnt"));
    SecondPasses();
    EXPECT_EQ(KeptFiles(), 0U);
}

TEST_F(RecoverCommandsTest, LibraryThatWasNeverSavedIsSavedByTheDialog) {
    Leave("gone-1", "Reds", "");
    program.recover.work = [] { return std::vector{0}; };
    Run(IDM_mnuFileRecover);
    program.prompts.chosenFiles.emplace_back("C:\\new.tnt");
    Run(IDM_mnuFileSave);
    EXPECT_TRUE(program.files.contents.contains("C:\\new.tnt"));
}

TEST_F(RecoverCommandsTest, AllAreOpenedAlsoBesideOneThatIsBrokenAndOneThatIsDamaged) {
    Leave("gone-1", "Reds", "C:\\reds.tnt");
    Leave("gone-2", "Broken", "");
    Leave("gone-3", "Damaged", "");
    program.files.contents[std::string(FakeProgram::kRecoveryFolder) + "\\gone-2.tnt"] = "rubbish";
    program.files.contents[std::string(FakeProgram::kRecoveryFolder) + "\\gone-3.tnt"] +=
        ColorLine("0DG1", "red", "x");
    program.recover.work = [&] {
        EXPECT_EQ(program.recover.rows.size(), 3U);
        return std::vector{0, 1, 2};
    };
    EXPECT_THROW(Run(IDM_mnuFileRecover), RuntimeError);
    EXPECT_EQ(program.view.nodes["0D"], "Damaged"); // the latest first
    EXPECT_EQ(program.view.nodes["1D"], "Reds");
    program.recover.work = [&] {
        EXPECT_EQ(program.recover.rows.size(), 2U);
        return std::vector<int>();
    };
    Run(IDM_mnuFileRecover);
}

// An opened library is there twice until its own copy is written.
TEST_F(RecoverCommandsTest, OpeningAllPushesOutNothingThatIsNotOpenYet) {
    constexpr int kAsManyAsStay = 20;
    for (char letter = 'a'; letter < 'a' + kAsManyAsStay; ++letter)
        Leave(std::string("gone-") + letter + '2', std::string(1, letter), "");
    Leave("gone-x1", "Oldest", "");
    program.files.contents.erase(std::string(FakeProgram::kRecoveryFolder) + "\\gone-t2.tnt");
    program.recover.work = [&] {
        EXPECT_EQ(program.recover.rows.back()[0], "Oldest");
        std::vector<int> allButTheLast(program.recover.rows.size() - 1);
        std::iota(allButTheLast.begin(), allButTheLast.end(), 0);
        return allButTheLast;
    };
    Run(IDM_mnuFileRecover);
    SecondPasses();
    SecondPasses();
    program.recover.work = [] { return std::vector<int>(); };
    Run(IDM_mnuFileRecover);
    ASSERT_EQ(program.recover.rows.size(), 1U);
    EXPECT_EQ(program.recover.rows[0][0], "Oldest");
}

TEST_F(RecoverCommandsTest, BrokenEntryIsToldAndStays) {
    Leave("gone-1", "Reds", "");
    program.files.contents[std::string(FakeProgram::kRecoveryFolder) + "\\gone-1.tnt"] = "rubbish";
    program.recover.work = [] { return std::vector{0}; };
    Run(IDM_mnuFileRecover);
    ASSERT_FALSE(program.prompts.messages.empty());
    EXPECT_EQ(program.prompts.messages.back().style, MessageStyle::Critical);
    EXPECT_EQ(KeptFiles(), 2U);
}

TEST_F(RecoverCommandsTest, WhatCanBeReadOfADamagedEntryDoesNotLiveInTheFolder) {
    Leave("gone-1", "Reds", "C:\\reds.tnt");
    program.files.contents[std::string(FakeProgram::kRecoveryFolder) + "\\gone-1.tnt"] +=
        ColorLine("0DG1", "red", "x");
    program.recover.work = [] { return std::vector{0}; };
    EXPECT_THROW(Run(IDM_mnuFileRecover), RuntimeError);
    EXPECT_EQ(program.view.nodes["0D"], "Reds");
    Run(IDM_mnuFileSave);
    EXPECT_TRUE(program.files.contents.contains("C:\\reds.tnt"));
    EXPECT_TRUE(program.files.contents.contains(std::string(FakeProgram::kRecoveryFolder) +
                                                "\\gone-1.tnt"));
}

TEST_F(RecoverCommandsTest, DeletingAsksFirst) {
    Leave("gone-1", "Reds", "");
    Leave("gone-2", "Blues", "");
    program.recover.work = [&] {
        program.prompts.answers = {Answer::No};
        program.application.RecoverWindowEvents().DeleteClicked(0);
        EXPECT_EQ(program.recover.rows.size(), 2U);
        program.prompts.answers = {Answer::Yes};
        program.application.RecoverWindowEvents().DeleteClicked(0);
        return std::vector<int>();
    };
    Run(IDM_mnuFileRecover);
    ASSERT_EQ(program.recover.rows.size(), 1U);
    EXPECT_EQ(program.recover.rows[0][0], "Reds");
    EXPECT_EQ(KeptFiles(), 2U);
}

TEST_F(RecoverCommandsTest, EmptyingAsksFirst) {
    Leave("gone-1", "Reds", "");
    Leave("gone-2", "Blues", "");
    program.recover.work = [&] {
        program.prompts.answers = {Answer::No};
        program.application.RecoverWindowEvents().EmptyClicked();
        EXPECT_EQ(KeptFiles(), 4U);
        program.prompts.answers = {Answer::Yes};
        program.application.RecoverWindowEvents().EmptyClicked();
        program.application.RecoverWindowEvents().EmptyClicked(); // nothing to ask about
        return std::vector<int>();
    };
    Run(IDM_mnuFileRecover);
    EXPECT_TRUE(program.recover.rows.empty());
    EXPECT_EQ(KeptFiles(), 0U);
}

TEST_F(RecoverCommandsTest, CopyThatCannotBeWrittenIsToldOnce) {
    NewLibrary("mine");
    program.files.FailAtStep(1, FakeFiles::FailureKind::FromHereOn);
    for (int second = 0; second < 30; ++second)
        SecondPasses();
    EXPECT_EQ(std::ranges::count(program.view.infoPanels, "<188>"), 1);
}

TEST_F(RecoverCommandsTest, PositionOfTheWindowIsKept) {
    program.recover.work = [&] {
        program.recover.bounds = {1500, 1500, 7500, 4500};
        program.application.RecoverWindowEvents().RecoverUnloading();
        return std::vector<int>();
    };
    Run(IDM_mnuFileRecover);
    program.recover.bounds = {};
    program.recover.work = nullptr;
    Run(IDM_mnuFileRecover);
    EXPECT_EQ(program.recover.bounds.left, 1500);
}

} // namespace
