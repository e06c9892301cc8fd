// Rules: Recovery
// What is kept of a library while the disk fails, or the program dies, at each step of keeping it.

#include "library/RecoveryKeeper.h"
#include "platform/Win32CalendarClock.h"
#include "platform/Win32Folders.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/fakes/FakeBackgroundWork.h"
#include "tests/fakes/FakeRunningCopies.h"
#include "tests/faults/DyingFiles.h"
#include "tests/faults/PreparedPlaces.h"
#include "tests/faults/RealLibrary.h"
#include "tests/faults/SecondProcess.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/ScratchFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>

namespace {

using Names = std::vector<std::string>;

constexpr const char* kId = "own-1"; // of the first library that FakeRunningCopies' copy keeps
constexpr const char* kContent = "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n";

std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

class RecoveryFaults : public testing::Test {
protected:
    RecoveryFolder Folder(const std::string& path) {
        return {{.files = files, .folders = folders, .copies = copies, .clock = clock}, path};
    }
    bool Keep(const std::string& path, const std::string& content) {
        return Folder(path).Write(kId, {.libraryName = "Lib", .filePath = "C:\\a.tnt"}, content);
    }
    std::optional<std::string> Kept(const std::string& path) {
        return files.ReadWhole(Folder(path).LibraryPath(kId));
    }
    Names FilesIn(const std::string& path) {
        Names names = folders.FileNamesIn(path);
        std::ranges::sort(names);
        return names;
    }
    // Another copy of the program writes; gives how it ended.
    static std::optional<unsigned long> KeepAndDie(int step, const std::string& path,
                                                   const std::string& content) {
        const RunningProgram process(SecondProcess("--keep-and-die " + std::to_string(step) + " " +
                                                   Quoted(path) + " " + content));
        return process.WaitForExitCode();
    }

    Win32Files files;
    Win32Folders folders;
    Win32CalendarClock clock;
    FakeRunningCopies copies;
    ScratchFolder scratch;
    const std::string recovery = scratch.File("recovery");
};

// The second process is a copy of its own, which is dead when the next one looks.
TEST_F(RecoveryFaults, ProcessKilledAtAnyStepLeavesTheOldOrTheNewCopyWholeAndNothingElse) {
    for (const bool isFirstTime : {true, false}) {
        bool completed = false;
        int step = 0;
        while (!completed && step < 50) {
            ++step;
            Folder(recovery).Remove(kId);
            ASSERT_TRUE(isFirstTime || Keep(recovery, "old"));
            const auto exitCode = KeepAndDie(step, recovery, "new");
            completed = exitCode == 0U;
            EXPECT_TRUE(completed || exitCode == DyingFiles::kExitCode) << "step " << step;
            const std::string kept = Kept(recovery).value_or("nothing");
            EXPECT_TRUE(kept == "new" || kept == (isFirstTime ? "nothing" : "old"))
                << "step " << step << ": " << kept;
            std::cout << "killed at step " << step << ": " << kept << "\n";
            copies.own = "next";
            RecoveryFolder next = Folder(recovery);
            next.Tidy({});
            const auto entries = next.Entries();
            copies.own = "own";
            EXPECT_EQ(entries.size(), kept == "nothing" ? 0U : 1U);
            EXPECT_EQ(FilesIn(recovery),
                      kept == "nothing" ? Names() : Names({"own-1.tnt", "own-1.txt"}));
            for (const RecoveryEntry& entry : entries)
                EXPECT_EQ(entry.info.libraryName, "Lib") << "step " << step;
        }
        EXPECT_TRUE(completed);
        EXPECT_GT(step, 9) << "two files, each with create, write, flush, close and a renaming";
    }
}

TEST_F(RecoveryFaults, CopyThatAnotherProgramKeepsToItselfStaysAndIsWrittenLater) {
    for (const char* const name : {"own-1.tnt", "own-1.txt"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(Keep(recovery, "old"));
        const std::string file = recovery + "\\" + name;
        {
            const RunningProgram holder(SecondProcess("--hold " + Quoted(file)));
            ASSERT_TRUE(PollUntil([&] { return !files.ReadWhole(file); }));
            EXPECT_FALSE(Keep(recovery, "new"));
        }
        ASSERT_TRUE(PollUntil([&] { return Kept(recovery) == "old" && files.ReadWhole(file); }));
        EXPECT_EQ(FilesIn(recovery), Names({"own-1.tnt", "own-1.txt"}));
        EXPECT_TRUE(Keep(recovery, "new"));
        EXPECT_EQ(Kept(recovery), "new");
    }
}

TEST_F(RecoveryFaults, MissingFoldersAreMadeAndOneThatCannotBeIsAFailure) {
    const std::string deep = scratch.File("a\\b\\recovery");
    EXPECT_TRUE(Keep(deep, "new"));
    EXPECT_EQ(Kept(deep), "new");
    scratch.Write("file", "");
    EXPECT_FALSE(Keep(scratch.File("file\\recovery"), "new")) << "a file is no folder";
    EXPECT_FALSE(Keep(scratch.File("file"), "new"));
    EXPECT_EQ(scratch.Read("file"), "");
}

TEST_F(RecoveryFaults, FullDiskKeepsTheOldCopyAndNothingOfTheNewOne) {
    const std::string disk = PreparedPlace("TNT_SMALL_DISK");
    if (disk.empty())
        GTEST_SKIP() << "no small disk could be mounted here";
    const std::string onDisk = disk + "\\recovery";
    ASSERT_TRUE(Keep(onDisk, "old"));
    EXPECT_FALSE(Keep(onDisk, std::string(300'000, 'x')));
    EXPECT_EQ(Kept(onDisk), "old");
    EXPECT_EQ(FilesIn(onDisk), Names({"own-1.tnt", "own-1.txt"}));
    EXPECT_TRUE(Keep(onDisk, "new")) << "the disk is as free as before";
    Folder(onDisk).Remove(kId);
}

TEST_F(RecoveryFaults, FolderThatIsReadOnlyIsAFailureAndItsCopyStays) {
    const std::string readOnly = PreparedPlace("TNT_READ_ONLY_FOLDER");
    if (readOnly.empty())
        GTEST_SKIP() << "no folder could be mounted read-only here";
    const Names before = FilesIn(readOnly);
    EXPECT_FALSE(Keep(readOnly, "new"));
    EXPECT_FALSE(Keep(readOnly + "\\recovery", "new"));
    EXPECT_EQ(FilesIn(readOnly), before);
}

// The program as it works: a library that changes while its folder has no room, and then has.
class KeeperOnASmallDisk : public RecoveryFaults {
protected:
    void Look() {
        keeper.Look();
        work.Wait();
        keeper.Look();
    }

    const std::string disk = PreparedPlace("TNT_SMALL_DISK");
    const std::string onDisk = disk + "\\recovery";
    RecoveryFolder folder = Folder(onDisk);
    RealLibrary program{files};
    Win32AnsiCodePage codePage{1252};
    FakeBackgroundWork work;
    RecoveryKeeper keeper{{.library = program.library,
                           .files = program.filesOfLibrary,
                           .folder = folder,
                           .work = work,
                           .codePage = codePage}};
};

TEST_F(KeeperOnASmallDisk, TellsOnceThatALibraryCannotBeKeptAndKeepsItWhenThereIsRoom) {
    if (disk.empty())
        GTEST_SKIP() << "no small disk could be mounted here";
    int told = 0;
    keeper.onFailed = [&] { ++told; };
    scratch.Write("a.tnt", kContent);
    program.Open(scratch.File("a.tnt"));
    program.AddColors(1);
    Look();
    const std::optional<std::string> kept = Kept(onDisk);
    ASSERT_TRUE(kept.has_value());
    program.AddColors(300, std::string(1000, 'x')); // more than the disk holds
    for (int second = 0; second < 25; ++second)
        Look();
    EXPECT_EQ(told, 1) << "of many times";
    EXPECT_EQ(Kept(onDisk), kept) << "what was kept before";
    for (int index = program.library.Colors().UpperBound(); index > 2; --index)
        program.library.Colors().Erase(index);
    for (int second = 0; second < 25; ++second)
        Look();
    EXPECT_NE(Kept(onDisk), kept) << "there is room again";
    EXPECT_EQ(told, 1);
    folder.Remove(kId);
}

} // namespace
