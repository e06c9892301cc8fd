// Rules: Recovery
// Libraries that differ from their files, and what is kept of them.

#include "library/RecoveryKeeper.h"
#include "tests/fakes/FakeBackgroundWork.h"
#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"
#include "tests/fakes/FakeRunningCopies.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr const char* kFolder = "C:\\data\\recovery";
constexpr const char* kFile = "C:\\a.tnt";
constexpr const char* kContent = "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n"
                                 "\"E#red=0DG1:red\xF7"
                                 "255\xF7"
                                 "0\xF7"
                                 "0\xF7"
                                 "100\xF7"
                                 "100\xF7"
                                 "100\xF7"
                                 "30\xF7"
                                 "0\xF7"
                                 "0\"\r\n";

class RecoveryTest : public testing::Test {
protected:
    RecoveryTest() {
        files.contents[kFile] = kContent;
        NewKeeper();
    }
    void NewKeeper() {
        keeper = std::make_unique<RecoveryKeeper>(RecoveryKeeper::Parts{
            .library = library,
            .files = libraryFiles,
            .folder = folder,
            .work = work,
            .codePage = codePage,
        });
    }
    std::string Open(const std::string& path = kFile) {
        return libraryFiles.Read(path, progress).mainKey;
    }
    // A second passes, and the work of it is done.
    void Look() {
        keeper->Look();
        work.Wait();
        keeper->Look();
    }
    void Rename(const std::string& key, const std::string& name) {
        library.Tree().SetText(key, name);
    }
    void Save(const std::string& mainKey) {
        const ComposedLibrary composed = libraryFiles.Compose(mainKey, progress);
        ASSERT_TRUE(libraryFiles.Write({kFile, mainKey, false}, composed.bytes).isWritten);
    }
    std::vector<std::string> Kept() { return files.FileNamesIn(kFolder); }
    std::string KeptContent(const std::string& id) {
        return files.contents[std::string(kFolder) + "\\" + id + ".tnt"];
    }

    FakeFiles files;
    FakeCodePage codePage = FakeCodePage::Western();
    FakeCalendarClock clock;
    FakeRunningCopies copies;
    FakeBackgroundWork work;
    ColorLibrary library;
    LibraryFiles libraryFiles{library, {.files = files, .codePage = codePage, .clock = clock}};
    RecoveryFolder folder{{.files = files, .folders = files, .copies = copies, .clock = clock},
                          kFolder};
    std::unique_ptr<RecoveryKeeper> keeper;
    UnheardProgress progress;
};

TEST_F(RecoveryTest, LibraryThatIsAsItsFileIsNotKept) {
    Open();
    Look();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(RecoveryTest, ChangedLibraryIsKeptWithWhatIsToldOfIt) {
    const std::string key = Open();
    Rename(key, "Other");
    Look();
    EXPECT_EQ(Kept(), (std::vector<std::string>{"own-1.tnt", "own-1.txt"}));
    std::string expected = kContent;
    expected.replace(expected.find("Lib"), 3, "Other");
    EXPECT_EQ(KeptContent("own-1"), expected);
    const std::vector<RecoveryEntry> entries = folder.Entries();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].info.libraryName, "Other");
    EXPECT_EQ(entries[0].info.filePath, kFile);
    EXPECT_EQ(entries[0].info.time, "2024-03-09 08:05:07");
    EXPECT_EQ(entries[0].info.colorCount, 1);
}

TEST_F(RecoveryTest, EveryKindOfChangeIsTakenUp) {
    const std::string key = Open();
    const std::vector<std::function<void()>> changes = {
        [&] { library.Colors().SetNames(1, "blue"); },
        [&] {
            library.Colors().SetValues(1, {1, 2, 3, 4, 5, 6, 7, 8, 9});
        },
        [&] { library.NewColorNode("0DG1", "new", {}); },
        [&] { library.Colors().Erase(1); },
        [&] { library.NewGroupNode(key, "group"); },
        [&] { library.Tree().SetText("0DG2", "other"); },
        [&] { library.Tree().Remove("0DG2"); },
    };
    std::string before = kContent;
    for (const auto& change : changes) {
        change();
        Look();
        const std::string after = libraryFiles.Compose(key, progress).bytes;
        ASSERT_NE(after, before);
        EXPECT_EQ(KeptContent("own-1"), after);
        before = after;
    }
}

TEST_F(RecoveryTest, WhatIsWrittenIsTheMomentOfTheLook) {
    const std::string key = Open();
    library.Colors().SetNames(1, "first");
    const std::string first = libraryFiles.Compose(key, progress).bytes;
    keeper->Look();
    library.Colors().SetNames(1, "second");
    library.Tree().SetText("0DG1", "second");
    work.Wait();
    EXPECT_EQ(KeptContent("own-1"), first);
    Look();
    EXPECT_EQ(KeptContent("own-1"), libraryFiles.Compose(key, progress).bytes);
}

TEST_F(RecoveryTest, SavedLibraryLeavesNothing) {
    const std::string key = Open();
    Rename(key, "Other");
    Look();
    ASSERT_FALSE(Kept().empty());
    Save(key);
    Look();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(RecoveryTest, ChangeThatIsTakenBackLeavesNothing) {
    const std::string key = Open();
    Rename(key, "Other");
    Look();
    ASSERT_FALSE(Kept().empty());
    Rename(key, "Lib");
    Look();
    EXPECT_TRUE(Kept().empty());
    Rename(key, "Other");
    Look();
    EXPECT_FALSE(Kept().empty());
}

TEST_F(RecoveryTest, NewLibraryIsKeptOnceItHasAGroup) {
    const std::string key = library.NewMainNode("new");
    Look();
    EXPECT_TRUE(Kept().empty());
    library.NewGroupNode(key, "group");
    Look();
    ASSERT_EQ(folder.Entries().size(), 1U);
    EXPECT_EQ(folder.Entries()[0].info.filePath, "");
}

TEST_F(RecoveryTest, ClosedLibraryStaysAsItWasAndCanBeRecovered) {
    const std::string key = Open();
    library.Colors().SetNames(1, "blue");
    const std::string content = libraryFiles.Compose(key, progress).bytes;
    library.RemoveMainNode(key);
    work.Wait();
    EXPECT_EQ(KeptContent("own-1"), content);
    Look();
    ASSERT_EQ(keeper->Entries().size(), 1U);
}

TEST_F(RecoveryTest, ClosedLibraryIsKeptAlsoWhileAnotherOneIsWritten) {
    const std::string first = Open();
    const std::string second = Open();
    Rename(first, "one");
    keeper->Look(); // the first one is under way
    Rename(second, "two");
    library.RemoveMainNode(second);
    Look();
    work.Wait();
    EXPECT_EQ(Kept().size(), 4U);
}

TEST_F(RecoveryTest, WhatIsOpenIsNothingToRecover) {
    Rename(Open(), "Other");
    Look();
    EXPECT_FALSE(Kept().empty());
    EXPECT_TRUE(keeper->Entries().empty());
}

TEST_F(RecoveryTest, EverythingIsKeptAtTheEndAtOnce) {
    Rename(Open(), "one");
    Rename(Open(), "two");
    keeper->KeepAll();
    EXPECT_EQ(Kept().size(), 4U);
}

TEST_F(RecoveryTest, RecoveredLibraryTakesThePlaceOfItsEntry) {
    Rename(Open(), "Other");
    keeper->KeepAll();
    library.RemoveMainNode("0D");
    const RecoveryEntry entry = keeper->Entries().at(0);
    const std::string key = Open(folder.LibraryPath(entry.id));
    keeper->IsOpenAgain(key, entry.id);
    EXPECT_TRUE(keeper->Entries().empty());
    Look();
    EXPECT_EQ(Kept(), (std::vector<std::string>{"own-2.tnt", "own-2.txt"}));
    Save(key);
    Look();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(RecoveryTest, ClosedLibraryThatCouldNotBeWrittenIsWrittenLater) {
    Rename(Open(), "Other");
    files.FailAtStep(1, FakeFiles::FailureKind::FromHereOn);
    library.RemoveMainNode("0D");
    Look();
    EXPECT_TRUE(Kept().empty());
    files.FailAtStep(0, FakeFiles::FailureKind::Reported);
    for (int second = 0; second < 20; ++second)
        Look();
    EXPECT_EQ(Kept().size(), 2U);
}

TEST_F(RecoveryTest, LibraryThatIsSavedAndClosedWhileItIsWrittenLeavesNothing) {
    const std::string key = Open();
    Rename(key, "Other");
    keeper->Look(); // under way
    Save(key);
    library.RemoveMainNode(key);
    work.Wait();
    Look();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(RecoveryTest, EntryThatIsOpenedAgainSurvivesTheUndoOfItsClosing) {
    library.History().BeginStep({});
    const std::string key = Open();
    library.History().EndStep(1, {});
    Rename(key, "Other");
    Look();
    library.History().BeginStep({});
    library.RemoveMainNode(key);
    library.History().EndStep(2, {});
    Look();
    const std::string again = Open(folder.LibraryPath("own-1"));
    keeper->IsOpenAgain(again, "own-1");
    static_cast<void>(library.History().Undo()); // the closed one is there too
    for (int second = 0; second < 3; ++second)
        Look();
    EXPECT_EQ(Kept().size(), 4U); // each has its own
}

TEST_F(RecoveryTest, NameThatTheFileCannotHoldIsNoSavedOne) {
    const std::string key = Open();
    library.Colors().SetNames(1, "a-b");
    Save(key);
    library.Colors().SetNames(1, "a=b");
    Look();
    EXPECT_EQ(Kept().size(), 2U);
}

TEST_F(RecoveryTest, AfterACrashWhatIsKeptAlreadyIsNotTouched) {
    const std::string key = Open();
    Rename(key, "good");
    Look();
    const std::string good = KeptContent("own-1");
    keeper->KeepAfterCrash();
    EXPECT_EQ(Kept().size(), 2U); // nothing is new
    Rename(key, "half");
    keeper->KeepAfterCrash();
    EXPECT_EQ(KeptContent("own-1"), good);
    EXPECT_EQ(KeptContent("own-2"), libraryFiles.Compose(key, progress).bytes);
}

TEST_F(RecoveryTest, NamesThatWouldEndTheReadingAreSpelledSoThatAllComesBack) {
    const std::string key = Open();
    library.Colors().SetNames(1, "a=b\xC3\xB7"
                                 "c");
    library.Tree().SetText("0DG1", "g=h");
    library.NewColorNode("0DG1", "next", {});
    Look();
    ASSERT_EQ(libraryFiles.Read(folder.LibraryPath("own-1"), progress).result,
              ReadResult::Complete);
    const ColorTable& colors = library.Colors();
    ASSERT_EQ(colors.UpperBound(), 4);
    EXPECT_EQ(colors.At(3).name, "a-b/c");
    EXPECT_EQ(colors.At(3).altName, "a-b/c");
    EXPECT_EQ(colors.At(4).name, "next");
    EXPECT_EQ(colors.At(1).name, "a=b\xC3\xB7"
                                 "c");
}

TEST_F(RecoveryTest, FailureIsToldOnceAndTriedAgainLater) {
    int told = 0;
    keeper->onFailed = [&] { ++told; };
    Rename(Open(), "Other");
    files.FailAtStep(1, FakeFiles::FailureKind::FromHereOn);
    for (int second = 0; second < 40; ++second)
        Look();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(Kept().empty());
    files.FailAtStep(0, FakeFiles::FailureKind::Reported);
    for (int second = 0; second < 20; ++second)
        Look();
    EXPECT_EQ(Kept().size(), 2U);
}

TEST_F(RecoveryTest, FailureOfOneLibraryIsToldOnceWhileAnotherOneIsKept) {
    int told = 0;
    keeper->onFailed = [&] { ++told; };
    Rename(Open(), "Other");
    Look();
    files.locked[std::string(kFolder) + "\\own-1.tnt"] = true;
    Rename("0D", "again");
    const std::string second = Open();
    for (int look = 0; look < 40; ++look) {
        const std::string name = "second " + std::to_string(look);
        Rename(second, name);
        Look();
        Look();
        EXPECT_TRUE(KeptContent("own-2").starts_with("\"D#" + name)) << look;
    }
    EXPECT_EQ(told, 1);
    files.locked.clear();
    for (int look = 0; look < 20; ++look)
        Look();
    files.locked[std::string(kFolder) + "\\own-1.tnt"] = true;
    Rename("0D", "and again");
    Look();
    EXPECT_EQ(told, 2) << "it had been kept meanwhile";
}

// Each step of writing a copy anew fails, or the process ends there.
TEST_F(RecoveryTest, WhateverHappensTheOldOrTheNewOneIsThereWhole) {
    const std::string key = Open();
    Rename(key, "one");
    Look();
    const std::string old = KeptContent("own-1");
    const std::string oldInfo = files.contents[std::string(kFolder) + "\\own-1.txt"];
    Rename(key, "two");
    const std::string fresh = libraryFiles.Compose(key, progress).bytes;
    constexpr int kMostSteps = 20;
    int reached = 0;
    for (const auto kind : {FakeFiles::FailureKind::Reported, FakeFiles::FailureKind::FromHereOn,
                            FakeFiles::FailureKind::Killed})
        for (int step = 1; step <= kMostSteps; ++step) {
            FakeFiles disk;
            disk.contents = {{std::string(kFolder) + "\\own-1.tnt", old},
                             {std::string(kFolder) + "\\own-1.txt", oldInfo}};
            RecoveryFolder failing(
                {.files = disk, .folders = disk, .copies = copies, .clock = clock}, kFolder);
            disk.FailAtStep(step, kind);
            try {
                static_cast<void>(failing.Write("own-1", {.libraryName = "two"}, fresh));
            } catch (const FakeFiles::Killed&) {
            }
            reached = std::max(reached, disk.Steps());
            const std::string left = disk.contents[std::string(kFolder) + "\\own-1.tnt"];
            EXPECT_TRUE(left == old || left == fresh) << step;
        }
    EXPECT_GE(reached, 9);
}

TEST_F(RecoveryTest, TheOldestGoWhenThereAreTooMany) {
    for (int number = 0; number < 25; ++number) {
        clock.now.minute = number;
        ASSERT_TRUE(folder.Write("gone-" + std::to_string(number), {}, "x"));
    }
    folder.Tidy({"gone-0"});
    const std::vector<RecoveryEntry> entries = folder.Entries();
    ASSERT_EQ(entries.size(), 21U); // one of them stays, though it is the oldest
    EXPECT_EQ(entries.front().id, "gone-24");
    EXPECT_EQ(entries[19].id, "gone-5");
    EXPECT_EQ(entries.back().id, "gone-0");
}

TEST_F(RecoveryTest, WhatIsOlderThanThirtyDaysGoes) {
    clock.now = {2024, 2, 8, 0, 0, 0};
    ASSERT_TRUE(folder.Write("gone-1", {}, "x"));
    clock.now = {2024, 2, 9, 23, 0, 0};
    ASSERT_TRUE(folder.Write("gone-2", {}, "x"));
    clock.now = {2024, 3, 10, 1, 0, 0};
    folder.Tidy({});
    ASSERT_EQ(folder.Entries().size(), 1U);
    EXPECT_EQ(folder.Entries()[0].id, "gone-2");
}

TEST_F(RecoveryTest, WhatAnotherCopyThatRunsKeepsIsItsOwn) {
    clock.now = {2020, 1, 1, 0, 0, 0};
    ASSERT_TRUE(folder.Write("other-1", {}, "x"));
    clock.now = {2024, 1, 1, 0, 0, 0};
    copies.others.insert("other");
    folder.Tidy({});
    EXPECT_TRUE(folder.Entries().empty());
    EXPECT_EQ(Kept().size(), 2U);
    copies.others.clear();
    EXPECT_EQ(folder.Entries().size(), 1U);
    folder.Tidy({});
    EXPECT_TRUE(Kept().empty());
}

TEST_F(RecoveryTest, WhatAKilledCopyLeftOfItsWorkGoes) {
    for (const char* name :
         {"gone-1.tnt", "gone-1.txt", "gone-1.tnt.saving", "gone-2.txt", "gone-3.tnt.saving2",
          "own-4.tnt.saving", "own-5.txt", "run-1.txt", "crash 1.txt"})
        files.contents[std::string(kFolder) + "\\" + name] = "x";
    copies.others.insert("run");
    folder.Tidy({});
    EXPECT_EQ(Kept(), (std::vector<std::string>{"crash 1.txt", "gone-1.tnt", "gone-1.txt",
                                                "own-4.tnt.saving", "own-5.txt", "run-1.txt"}));
}

TEST_F(RecoveryTest, WithoutAFolderNothingIsKept) {
    RecoveryFolder none({.files = files, .folders = files, .copies = copies, .clock = clock}, "");
    RecoveryKeeper idle({.library = library,
                         .files = libraryFiles,
                         .folder = none,
                         .work = work,
                         .codePage = codePage});
    Rename(Open(), "Other");
    idle.Look();
    idle.KeepAll();
    EXPECT_FALSE(work.IsBusy());
    EXPECT_TRUE(idle.Entries().empty());
}

} // namespace
