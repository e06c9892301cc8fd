// Rules: Library files
// Nothing is lost when a save goes wrong: each step of it fails in turn, alone or together with
// everything after it, or ends the process.

#include "library/SafeFileWriter.h"
#include "tests/fakes/LibraryOnFakes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <new>

namespace {

using FailureKind = FakeFiles::FailureKind;
using Message = FakePrompts::Message;

constexpr const char* kFile = "C:\\lib\\a.tnt";
constexpr const char* kBackup = "C:\\lib\\a.tnt.bak";
constexpr const char* kBeside = "C:\\lib\\a.tnt.saving";
constexpr const char* kOld = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";
constexpr const char* kNew = "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n\"G#added=0DG2\"\r\n";
constexpr int kMoreThanAllSteps = 50; // so that a save that never completes ends the test

// How a save goes when no step fails: with a backup or without, and how far the platform's own
// exchange of the files comes.
struct Way {
    bool backups = true;
    Exchanged exchange = Exchanged::Done;
    int steps = 0;
};

// A library that was opened and changed, one Save before its end.
struct ChangedLibrary : LibraryOnFakes {
    explicit ChangedLibrary(const Way& way) {
        settings.createBackups = way.backups;
        files.exchanges = way.exchange;
        files.contents[kFile] = kOld;
        files.contents[kBackup] = "older";
        prompts.chosenFiles.emplace_back(kFile);
        prompts.answers.push_back(Answer::No);
        commands.mnuFileOpen_Click();
        library.NewGroupNode("0D", "added");
        prompts.messages.clear();
        view.infoPanels.clear();
    }

    // The content under the file's name, else the one under its backup's.
    [[nodiscard]] std::string Kept() const {
        const auto file = files.contents.find(kFile);
        return file == files.contents.end() ? files.contents.at(kBackup) : file->second;
    }
    [[nodiscard]] bool IsWhole() const { return Kept() == kOld || Kept() == kNew; }
};

class SaveFaults : public testing::TestWithParam<Way> {
protected:
    // Lets the save fail at step 1, 2, ... until it completes; returns how many steps it took.
    template <typename Check>
    static int ForEachStep(FailureKind kind, Check check) {
        for (int step = 1; step < kMoreThanAllSteps; ++step) {
            ChangedLibrary changed(GetParam());
            changed.files.FailAtStep(step, kind);
            changed.commands.mnuFileSave_Click();
            if (changed.files.Steps() < step)
                return changed.files.Steps();
            SCOPED_TRACE("step " + std::to_string(step));
            check(changed);
        }
        return kMoreThanAllSteps;
    }

    static int StepsOfASave() { return GetParam().steps; }
};

TEST_P(SaveFaults, EveryFailedStepKeepsTheOldContentUnderTheFilesName) {
    const int steps = ForEachStep(FailureKind::Reported, [](const ChangedLibrary& changed) {
        ASSERT_TRUE(changed.files.contents.contains(kFile));
        EXPECT_EQ(changed.files.contents.at(kFile), kOld);
        EXPECT_FALSE(changed.files.contents.contains(kBeside));
    });
    EXPECT_EQ(steps, StepsOfASave());
}

TEST_P(SaveFaults, EveryFailedStepIsToldOnceWithTheFilesName) {
    ForEachStep(FailureKind::Reported, [](const ChangedLibrary& changed) {
        EXPECT_EQ(changed.prompts.messages,
                  (std::vector<Message>{{"<4>C:\\lib\\a.tnt", 16, "<98>"}}));
        EXPECT_TRUE(changed.view.infoPanels.empty());
    });
}

TEST_P(SaveFaults, MediumThatGoesAwayLeavesTheOldContentUnderNameOrBackup) {
    const int steps = ForEachStep(FailureKind::FromHereOn, [](const ChangedLibrary& changed) {
        EXPECT_EQ(changed.Kept(), kOld);
        EXPECT_EQ(changed.prompts.messages.size(), 1U);
    });
    EXPECT_EQ(steps, StepsOfASave());
}

TEST_P(SaveFaults, LibraryKeepsItsStateAndIsSavedWhenTheFaultIsGone) {
    ForEachStep(FailureKind::FromHereOn, [](ChangedLibrary& changed) {
        EXPECT_EQ(changed.library.Tree().At("0D").file, kFile);
        EXPECT_EQ(changed.library.GetGroupInMainnode("0D").size(), 2U);
        changed.files.FailAtStep(0, FailureKind::Reported);
        changed.commands.mnuFileSave_Click();
        EXPECT_EQ(changed.files.contents.at(kFile), kNew);
        EXPECT_EQ(changed.prompts.messages.size(), 1U); // of the failed save alone
    });
}

TEST_P(SaveFaults, ProcessKilledAtAnyStepLeavesOldOrNewWholeUnderNameOrBackup) {
    int step = 1;
    for (; step < kMoreThanAllSteps; ++step) {
        ChangedLibrary changed(GetParam());
        changed.files.FailAtStep(step, FailureKind::Killed);
        try {
            changed.commands.mnuFileSave_Click();
            break;
        } catch (const FakeFiles::Killed&) {
            EXPECT_TRUE(changed.IsWhole()) << "step " << step << ": " << changed.Kept();
        }
    }
    EXPECT_EQ(step, StepsOfASave() + 1);
}

TEST_P(SaveFaults, WhatStandsUnderTheNameOfTheNewContentIsNeitherTakenNorRemoved) {
    for (const FailureKind kind : {FailureKind::Reported, FailureKind::FromHereOn}) {
        ForEachStep(kind, [](const ChangedLibrary&) {});
        for (int step = 0; step <= StepsOfASave(); ++step) {
            ChangedLibrary changed(GetParam());
            changed.files.contents[kBeside] = "of somebody else";
            changed.files.folders["C:\\lib\\a.tnt.saving2"] = true;
            changed.files.FailAtStep(step, kind);
            changed.commands.mnuFileSave_Click();
            EXPECT_EQ(changed.files.contents.at(kBeside), "of somebody else");
            EXPECT_EQ(changed.Kept(), step == 0 ? kNew : kOld);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Ways, SaveFaults,
    testing::Values(
        // Create, write, flush, close and exchange.
        Way{false, Exchanged::Done, 5}, Way{true, Exchanged::Done, 5},
        // And the replacement, or the rename to ".bak" and the one to the name, in its stead.
        Way{false, Exchanged::NotSupported, 6}, Way{true, Exchanged::NotSupported, 7},
        // An exchange that stays in its middle is brought to its end.
        Way{true, Exchanged::OldIsBackup, 6}));

// The platform has removed the old file and could not give the new one its name.
TEST(SaveThatLosesTheOldFile, NewContentGetsItsNameOrStaysWhereItIs) {
    for (const int failingStep : {0, 6}) { // 6: the rename that brings it to its end
        ChangedLibrary changed({false, Exchanged::OldIsGone});
        changed.files.FailAtStep(failingStep, FailureKind::Reported);
        changed.commands.mnuFileSave_Click();
        const char* place = failingStep == 0 ? kFile : kBeside;
        ASSERT_TRUE(changed.files.contents.contains(place));
        EXPECT_EQ(changed.files.contents.at(place), kNew);
        EXPECT_EQ(changed.prompts.messages.size(), failingStep == 0 ? 0U : 1U);
    }
}

TEST(SaveWhoseLastLookThrows, LeavesTheOldFileAloneAndNothingBeside) {
    FakeFiles files;
    files.contents[kFile] = kOld;
    const auto fail = []() -> bool { throw std::bad_alloc(); };
    EXPECT_THROW(static_cast<void>(SafeFileWriter(files).Write(kFile, kNew, true, fail)),
                 std::bad_alloc);
    EXPECT_EQ(files.contents, (decltype(files.contents){{kFile, kOld}}));
}

// The file has what the library does not hold.
constexpr const char* kForeign = "\"D#Other=0D:0\"\r\n";

bool IsForeignContentThere(const ChangedLibrary& changed) {
    return std::ranges::any_of(changed.files.contents,
                               [](const auto& file) { return file.second == kForeign; });
}

TEST_P(SaveFaults, UnknownContentIsWholeSomewhereWhicheverStepFails) {
    for (const FailureKind kind :
         {FailureKind::Reported, FailureKind::FromHereOn, FailureKind::Killed}) {
        int step = 1;
        for (bool completed = false; !completed && step < kMoreThanAllSteps; ++step) {
            ChangedLibrary changed(GetParam());
            changed.files.contents[kFile] = kForeign;
            changed.files.FailAtStep(step, kind);
            try {
                changed.commands.mnuFileSave_Click();
            } catch (const FakeFiles::Killed&) {
            }
            completed = changed.files.Steps() < step;
            EXPECT_TRUE(IsForeignContentThere(changed)) << "step " << step;
        }
        EXPECT_EQ(step, StepsOfASave() + 4 + 2) << "create, write, flush and close of the copy too";
    }
}

TEST_P(SaveFaults, UnknownContentIsNotKeptTwiceByASaveThatFails) {
    for (int step = 1; step <= StepsOfASave() + 4; ++step) {
        ChangedLibrary changed(GetParam());
        changed.files.contents[kFile] = kForeign;
        changed.files.FailAtStep(step, FailureKind::Reported);
        changed.commands.mnuFileSave_Click();
        EXPECT_EQ(changed.files.contents.at(kFile), kForeign);
        for (const auto& [path, content] : changed.files.contents)
            EXPECT_EQ(path.find("(kept"), std::string::npos) << "step " << step;
        EXPECT_TRUE(changed.view.infoPanels.empty());
    }
}

// The platform has removed the old file, and somebody else was quicker to take its name.
TEST(SaveThatLosesTheOldFile, CopyOfItsUnknownContentStays) {
    for (const Exchanged outcome : {Exchanged::OldIsGone, Exchanged::OldIsBackup}) {
        ChangedLibrary changed({outcome == Exchanged::OldIsBackup, outcome});
        changed.files.contents[kFile] = kForeign;
        changed.files.newcomer = "of somebody else";
        changed.commands.mnuFileSave_Click();
        EXPECT_EQ(changed.files.contents.at(kFile), "of somebody else");
        EXPECT_TRUE(changed.files.contents.contains("C:\\lib\\a (kept 2024-03-09 080507).tnt"));
        EXPECT_TRUE(IsForeignContentThere(changed));
        EXPECT_EQ(changed.prompts.messages.size(), 1U);
    }
}

// Names up to the longest that a file system takes.
class LongNames : public LibraryOnFakes, public testing::Test {
protected:
    LongNames() {
        library.NewMainNode("L");
        library.NewGroupNode("0D", "g");
    }
    static std::string PathOf(std::size_t length) {
        return "C:\\lib\\" + std::string(length - 4, 'x') + ".tnt";
    }
    bool Save(const std::string& path) {
        return libraryFiles.FileWriteColorValues(path, "0D", UnknownContent::GivenUp).isWritten;
    }
};

TEST_F(LongNames, NameWithoutRoomForASuffixIsSavedAndNothingStaysBeside) {
    settings.createBackups = false;
    for (std::size_t length = 245; length <= 255; ++length)
        for (int save = 1; save <= 2; ++save)
            EXPECT_TRUE(Save(PathOf(length))) << length;
    EXPECT_EQ(files.contents.size(), 11U);
    EXPECT_FALSE(Save(PathOf(256)));
}

TEST_F(LongNames, NameOfLettersOfSeveralBytesIsCutBetweenThem) {
    for (std::size_t blanks = 0; blanks < 3; ++blanks) {
        std::string path = "C:\\lib\\" + std::string(blanks, ' ');
        for (int letter = 0; letter < 83; ++letter)
            path += "\u8272";
        files.FailAtStep(2, FailureKind::Killed);
        EXPECT_THROW(Save(path), FakeFiles::Killed);
        ASSERT_EQ(files.contents.size(), 1U);
        const std::string beside = files.contents.begin()->first;
        const std::size_t kept = beside.rfind(".saving");
        EXPECT_EQ(beside.substr(0, kept), path.substr(0, kept));
        EXPECT_EQ((kept - 7 - blanks) % 3, 0U) << "bytes of whole letters";
        files.contents.clear();
    }
}

TEST_F(LongNames, BackupWithoutRoomForItsNameFailsTheSaveAndKeepsTheFile) {
    settings.createBackups = true;
    for (std::size_t length = 249; length <= 255; ++length) {
        files.contents = {{PathOf(length), kOld}};
        const bool hasRoom = length + 4 <= 255;
        EXPECT_EQ(Save(PathOf(length)), hasRoom) << length;
        EXPECT_EQ(files.contents.size(), hasRoom ? 2U : 1U) << length;
        EXPECT_EQ(files.contents.at(PathOf(length) + (hasRoom ? ".bak" : "")), kOld) << length;
    }
}

} // namespace
