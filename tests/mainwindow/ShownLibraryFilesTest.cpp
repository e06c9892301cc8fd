// Rules: Library files
#include "mainwindow/ShownLibraryFiles.h"

#include "common/RuntimeError.h"
#include "tests/fakes/LibraryOnFakes.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kFile = "C:\\colors.tnt";
constexpr const char* kBackup = "C:\\colors.tnt.bak";
constexpr const char* kDivision = "\xF7"; // in the Western code page

std::string ValuesOf(const std::string& altName, const std::string& first) {
    std::string line = altName + kDivision + first;
    for (int value = 2; value <= 9; ++value)
        line += kDivision + std::to_string(value);
    return line;
}

class ShownLibraryFilesTest : public testing::Test, protected LibraryOnFakes {
protected:
    bool Read(const std::string& content) {
        files.contents[kFile] = content;
        return libraryFiles.FileReadColorValues(kFile);
    }
    [[nodiscard]] bool Write() { return libraryFiles.FileWriteColorValues(kFile, "0D").isWritten; }

    void MakeLibrary() {
        library.NewMainNode("Lib");
        library.NewGroupNode("0D", "one");
        library.NewGroupNode("0D", "two");
        constexpr ColorValueArray kValues{255, 128, 0, 10, 20, 30, 40, 50, 60};
        library.NewColorNode("0DG2", "b", kValues);
        library.NewColorNode("0DG1", "a", kValues);
    }
    void ExpectInvalidFileMessage() {
        ASSERT_EQ(prompts.messages.size(), 1U);
        EXPECT_EQ(prompts.messages[0], (FakePrompts::Message{"<5> C:\\colors.tnt", 48, "<98>"}));
        EXPECT_FALSE(progress.isShown);
    }
};

// The file that MakeLibrary's library gives, byte for byte.
const std::string kGolden = "\"D#Lib=0D:4\"\r\n"
                            "\"G#one=0DG1\"\r\n"
                            "\"G#two=0DG2\"\r\n"
                            "\"E#b=0DG2:b\xF7"
                            "255\xF7"
                            "128\xF7"
                            "0\xF7"
                            "10\xF7"
                            "20\xF7"
                            "30\xF7"
                            "40\xF7"
                            "50\xF7"
                            "60\"\r\n"
                            "\"E#a=0DG1:a\xF7"
                            "255\xF7"
                            "128\xF7"
                            "0\xF7"
                            "10\xF7"
                            "20\xF7"
                            "30\xF7"
                            "40\xF7"
                            "50\xF7"
                            "60\"\r\n";

TEST_F(ShownLibraryFilesTest, WrittenFileIsHeaderGroupsThenColorsInTheOrderOfTheTable) {
    MakeLibrary();
    EXPECT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kFile), kGolden);
}

TEST_F(ShownLibraryFilesTest, ReadingWhatWasWrittenGivesTheSameColors) {
    MakeLibrary();
    ASSERT_TRUE(Write());
    EXPECT_TRUE(libraryFiles.FileReadColorValues(kFile));
    EXPECT_EQ(library.Tree().At("1D").text, "Lib");
    EXPECT_EQ(library.Tree().At("1D").file, kFile);
    EXPECT_EQ(library.Tree().At("1DG2").text, "two");
    const ColorValueArray values{255, 128, 0, 10, 20, 30, 40, 50, 60};
    EXPECT_EQ(library.Colors().At(3), (ColorRecord{"b", "1DG2E1", "1DG2", false, values, "b"}));
    EXPECT_EQ(library.Colors().At(4), (ColorRecord{"a", "1DG1E2", "1DG1", false, values, "a"}));
}

TEST_F(ShownLibraryFilesTest, ColorNumbersRunThroughTheWholeFile) {
    ASSERT_TRUE(Read("\"D#L=0D:5\"\r\n\"G#g=0DG1\"\r\n\"G#h=0DG2\"\r\n\"E#a=0DG1:" +
                     ValuesOf("a", "1") + "\"\r\n\"E#b=0DG2:" + ValuesOf("b", "1") +
                     "\"\r\n\"E#c=0DG1:" + ValuesOf("c", "1") + "\"\r\n"));
    EXPECT_EQ(library.Colors().At(1).key, "0DG1E1");
    EXPECT_EQ(library.Colors().At(2).key, "0DG2E2");
    EXPECT_EQ(library.Colors().At(3).key, "0DG1E3");
}

TEST_F(ShownLibraryFilesTest, SameFileTwiceGivesTwoLibrariesWithKeysOfTheirOwn) {
    ASSERT_TRUE(Read(kGolden));
    ASSERT_TRUE(Read(kGolden));
    EXPECT_EQ(library.Tree().MainNodes(), (std::vector<std::string>{"0D", "1D"}));
    EXPECT_EQ(library.GetColorCountInGroup("0DG1"), 1);
    EXPECT_EQ(library.GetColorCountInGroup("1DG1"), 1);
}

TEST_F(ShownLibraryFilesTest, GroupsAreRenumberedAndColorsFollowTheirGroup) {
    ASSERT_TRUE(
        Read("\"D#L=7D:2\"\r\n\"G#g=7DG9\"\r\n\"E#a=7DG9:" + ValuesOf("a", "1") + "\"\r\n"));
    EXPECT_EQ(library.Tree().At("0DG1").text, "g");
    EXPECT_EQ(library.Colors().At(1).groupKey, "0DG1");
}

TEST_F(ShownLibraryFilesTest, EmptyGroupsSurviveSavingAndLoading) {
    library.NewMainNode("Lib");
    library.NewGroupNode("0D", "empty");
    ASSERT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kFile), "\"D#Lib=0D:1\"\r\n\"G#empty=0DG1\"\r\n");
    ASSERT_TRUE(libraryFiles.FileReadColorValues(kFile));
    EXPECT_EQ(library.GetColorCountInGroup("1DG1"), 0);
}

TEST_F(ShownLibraryFilesTest, NamesAreCutAtTheFirstEqualsSign) {
    ASSERT_TRUE(Read("\"D#A=B=0D:2\"\r\n\"G#g=h=0DG1\"\r\n"));
    EXPECT_EQ(library.Tree().At("0D").text, "A");
    EXPECT_EQ(library.Tree().At("0DG1").text, "g");
}

TEST_F(ShownLibraryFilesTest, ColonInAColorNameStaysBecauseItIsSearchedBehindTheEqualsSign) {
    ASSERT_TRUE(
        Read("\"D#L=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a:b=0DG1:" + ValuesOf("a:b", "1") + "\"\r\n"));
    EXPECT_EQ(library.Colors().At(1).name, "a:b");
    EXPECT_EQ(library.Colors().At(1).altName, "a:b");
}

TEST_F(ShownLibraryFilesTest, EqualsSignInASavedColorNameMakesTheFileInvalid) {
    // The name is cut at the sign, and what follows is no key of a group.
    EXPECT_FALSE(
        Read("\"D#L=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a=b=0DG1:" + ValuesOf("x", "1") + "\"\r\n"));
    ExpectInvalidFileMessage();
}

TEST_F(ShownLibraryFilesTest, DivisionSignInAnAltNameMakesTheFileInvalid) {
    EXPECT_FALSE(
        Read("\"D#L=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG1:x\xF7y" + ValuesOf("", "1") + "\"\r\n"));
    ExpectInvalidFileMessage();
}

TEST_F(ShownLibraryFilesTest, QuotesInNamesAreKept) {
    library.NewMainNode("a \"b\"");
    library.NewGroupNode("0D", "\"");
    ASSERT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kFile), "\"D#a \"b\"=0D:1\"\r\n\"G#\"=0DG1\"\r\n");
    ASSERT_TRUE(libraryFiles.FileReadColorValues(kFile));
    EXPECT_EQ(library.Tree().At("1D").text, "a \"b\"");
    EXPECT_EQ(library.Tree().At("1DG1").text, "\"");
}

TEST_F(ShownLibraryFilesTest, UmlautsAreSingleBytesOfTheCodePage) {
    library.NewMainNode("Stähle");
    library.NewGroupNode("0D", "Größe");
    ASSERT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kFile), "\"D#St\xE4hle=0D:1\"\r\n\"G#Gr\xF6\xDF"
                                        "e=0DG1\"\r\n");
    ASSERT_TRUE(libraryFiles.FileReadColorValues(kFile));
    EXPECT_EQ(library.Tree().At("1DG1").text, "Größe");
}

TEST_F(ShownLibraryFilesTest, OtherTagsAreSkippedAndCountForTheProgressAllTheSame) {
    ASSERT_TRUE(Read("\"D#L=0D:9\"\r\n\"X#something\"\r\n\r\n\"G#g=0DG1\"\r\n"));
    EXPECT_EQ(library.GetGroupInMainnode("0D").size(), 1U);
    EXPECT_EQ(progress.calls, (std::vector<std::string>{"show <60> 0..9", "value 1", "value 2",
                                                        "value 3", "hide"}));
}

TEST_F(ShownLibraryFilesTest, LineEndsMayBeLineFeedsAloneAndTheLastOneMayLack) {
    ASSERT_TRUE(Read("\"D#L=0D:2\"\n\"G#g=0DG1\"\n\"E#a=0DG1:" + ValuesOf("a", "1") + "\""));
    EXPECT_EQ(library.GetColorCountInGroup("0DG1"), 1);
}

TEST_F(ShownLibraryFilesTest, VeryLongLinesAndZeroBytesAreRead) {
    const std::string longName(200000, 'n');
    ASSERT_TRUE(Read("\"D#L=0D:1\"\r\n\"G#" + longName + "=0DG1\"\r\n\"G#" +
                     std::string("z\0z", 3) + "=0DG2\"\r\n"));
    EXPECT_EQ(library.Tree().At("0DG1").text, longName);
    EXPECT_EQ(library.Tree().At("0DG2").text, std::string("z\0z", 3));
}

TEST_F(ShownLibraryFilesTest, MissingFileIsNoMessage) {
    EXPECT_FALSE(libraryFiles.FileReadColorValues("C:\\none.tnt"));
    EXPECT_FALSE(libraryFiles.FileReadColorValues(""));
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_EQ(view.rowChanges, 0);
}

TEST_F(ShownLibraryFilesTest, EveryOutcomeOfAReadingIsTold) {
    files.contents[kFile] = kGolden;
    EXPECT_EQ(libraryFiles.Read(kFile), ReadResult::Complete);
    EXPECT_EQ(libraryFiles.Read("C:\\none.tnt"), ReadResult::Missing);
    files.contents[kFile] += "\"E#\"";
    EXPECT_EQ(libraryFiles.Read(kFile), ReadResult::Invalid);
    prompts.messages.clear();
    files.unreadable[kFile] = true;
    EXPECT_EQ(libraryFiles.Read(kFile), ReadResult::Unreadable);
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_EQ(library.Tree().MainNodes().size(), 2U) << "and nothing is added";
}

TEST_F(ShownLibraryFilesTest, InvalidHeaderAddsNothing) {
    for (const char* content : {"", "\"\r\n", "hello\r\n", "\"G#g=0DG1\"\r\n",
                                "\"D#no equals sign\"\r\n", "\xEF\xBB\xBF\"D#L=0D:1\"\r\n"}) {
        prompts.messages.clear();
        EXPECT_FALSE(Read(content)) << content;
        ExpectInvalidFileMessage();
        EXPECT_TRUE(library.Tree().MainNodes().empty());
    }
}

TEST_F(ShownLibraryFilesTest, GroupWithoutEqualsSignEndsTheLoadAndKeepsWhatWasAdded) {
    EXPECT_FALSE(Read("\"D#L=0D:2\"\r\n\"G#g=0DG1\"\r\n\"G#broken\"\r\n\"G#h=0DG2\"\r\n"));
    ExpectInvalidFileMessage();
    EXPECT_EQ(library.GetGroupInMainnode("0D").size(), 1U);
}

TEST_F(ShownLibraryFilesTest, ColorWithOtherThanTenFieldsEndsTheLoadAndKeepsWhatWasAdded) {
    for (const char* broken : {"\"E#b=0DG1:b\xF7"
                               "1\xF7"
                               "2\"",
                               "\"E#b\"", "\"E#b=0DG1\""}) {
        prompts.messages.clear();
        view.rowChanges = 0;
        const int before = library.Colors().UpperBound();
        EXPECT_FALSE(Read("\"D#L=0D:3\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG1:" + ValuesOf("a", "1") +
                          "\"\r\n" + broken + "\r\n\"E#c=0DG1:" + ValuesOf("c", "1") + "\"\r\n"));
        ExpectInvalidFileMessage();
        EXPECT_EQ(library.Colors().UpperBound(), before + 1);
        EXPECT_EQ(view.rowChanges, 1) << "the list is refreshed";
    }
}

TEST_F(ShownLibraryFilesTest, ColorOfAGroupThatTheFileDoesNotDeclareEndsTheLoad) {
    EXPECT_FALSE(
        Read("\"D#L=0D:3\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG7:" + ValuesOf("a", "1") + "\"\r\n"));
    ExpectInvalidFileMessage();
    EXPECT_EQ(library.Colors().UpperBound(), 0);
}

TEST_F(ShownLibraryFilesTest, FirstGroupWithAKeyTakesItsColors) {
    ASSERT_TRUE(Read("\"D#L=0D:3\"\r\n\"G#g=0DG1\"\r\n\"G#h=0DG1\"\r\n\"E#a=0DG1:" +
                     ValuesOf("a", "1") + "\"\r\n"));
    EXPECT_EQ(library.Colors().At(1).groupKey, "0DG1");
}

TEST_F(ShownLibraryFilesTest, ValueThatIsNoSixteenBitNumberIsAConversionError) {
    for (const char* value : {"40000", "x", ""}) {
        view.rowChanges = 0;
        EXPECT_THROW(
            Read("\"D#L=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG1:" + ValuesOf("a", value) + "\"\r\n"),
            RuntimeError)
            << value;
        EXPECT_FALSE(progress.isShown);
        EXPECT_EQ(view.rowChanges, 1) << "the list is refreshed";
    }
}

TEST_F(ShownLibraryFilesTest, NegativeValuesAreKept) {
    ASSERT_TRUE(
        Read("\"D#L=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG1:" + ValuesOf("a", "-32768") + "\"\r\n"));
    EXPECT_EQ(library.Colors().At(1).values[0], -32768);
}

TEST_F(ShownLibraryFilesTest, HeadersCountIsOnlyTheRangeOfTheBar) {
    for (const auto& [count, shown] :
         {std::pair{":12abc", "12"}, std::pair{":", "0"}, std::pair{"", "0"}, std::pair{":-5", "0"},
          std::pair{":99999999999", "2147483647"}}) {
        progress.calls.clear();
        EXPECT_TRUE(Read(std::string("\"D#L=0D") + count + "\"\r\n"));
        EXPECT_EQ(progress.calls.front(), std::string("show <60> 0..") + shown);
    }
}

TEST_F(ShownLibraryFilesTest, ReadLibraryIsShown) {
    ASSERT_TRUE(Read(kGolden));
    EXPECT_EQ(view.rowChanges, 1);
    EXPECT_EQ(list.RowCount(), 1) << "of the first group";
    EXPECT_EQ(library.Tree().Selected(), "0D");
}

TEST_F(ShownLibraryFilesTest, CodePageWithoutDivisionSignSeparatesWithTheSameByte) {
    codePage = FakeCodePage::Cyrillic();
    MakeLibrary();
    ASSERT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kFile), kGolden);
    EXPECT_TRUE(libraryFiles.FileReadColorValues(kFile));
    EXPECT_EQ(library.Colors().UpperBound(), 4);
}

// The letter of byte F7 in Cyrillic, in names of everyday colors.
TEST_F(ShownLibraryFilesTest, LetterThatStandsInForTheDivisionSignMayStandInNames) {
    codePage = FakeCodePage::Cyrillic();
    const std::string letter = "\xD1\x87";
    MakeLibrary();
    library.Colors().SetNames(1, letter + "\xD0\xB5" + letter);
    library.Colors().SetNames(2, letter);
    ASSERT_TRUE(Write());
    ASSERT_TRUE(libraryFiles.FileReadColorValues(kFile));
    ASSERT_EQ(library.Colors().UpperBound(), 4);
    for (const int index : {1, 2}) {
        const ColorRecord written = library.Colors().At(index);
        const ColorRecord read = library.Colors().At(index + 2);
        EXPECT_EQ(read.name, written.name);
        EXPECT_EQ(read.altName, written.altName);
        EXPECT_EQ(read.values, written.values);
    }
}

TEST_F(ShownLibraryFilesTest, TooFewValuesAreInvalidAlsoWhereALetterSeparates) {
    codePage = FakeCodePage::Cyrillic();
    MakeLibrary();
    ASSERT_TRUE(Write());
    std::string& content = files.contents.at(kFile);
    const std::size_t separator = content.find('\xF7');
    content.erase(separator, 1);
    EXPECT_FALSE(libraryFiles.FileReadColorValues(kFile));
}

TEST_F(ShownLibraryFilesTest, WritingCountsGroupsThenColorsInTheProgressWindow) {
    MakeLibrary();
    progress.calls.clear();
    ASSERT_TRUE(Write());
    EXPECT_EQ(progress.calls, (std::vector<std::string>{"show <61> 0..4", "value 1", "value 2",
                                                        "value 3", "value 4", "hide"}));
}

TEST_F(ShownLibraryFilesTest, OnlyColorsWhoseKeyBeginsWithTheMainKeyAreWritten) {
    for (int number = 0; number <= 10; ++number)
        library.NewMainNode("L" + std::to_string(number));
    library.NewGroupNode("0D", "zero");
    library.NewGroupNode("10D", "ten");
    library.NewColorNode("0DG1", "a", {});
    library.NewColorNode("10DG1", "b", {});
    ASSERT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kFile).find("E#b"), std::string::npos);
    ASSERT_TRUE(libraryFiles.FileWriteColorValues(kFile, "10D").isWritten);
    EXPECT_EQ(files.contents.at(kFile).find("E#a"), std::string::npos);
    EXPECT_NE(files.contents.at(kFile).find("E#b"), std::string::npos);
}

TEST_F(ShownLibraryFilesTest, OldFileBecomesTheBackupAndReplacesAnOlderOne) {
    MakeLibrary();
    ASSERT_TRUE(Write());
    files.contents[kBackup] = "older";
    library.NewGroupNode("0D", "three");
    ASSERT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kBackup), kGolden);
    EXPECT_NE(files.contents.at(kFile), kGolden);
    EXPECT_EQ(files.contents.size(), 2U) << "nothing else stays beside it";
}

TEST_F(ShownLibraryFilesTest, WithoutBackupsTheOldFileIsReplaced) {
    MakeLibrary();
    settings.createBackups = false;
    files.contents[kFile] = "old";
    files.contents[kBackup] = "older";
    ASSERT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kBackup), "older");
    EXPECT_EQ(files.contents.at(kFile), kGolden);
}

TEST_F(ShownLibraryFilesTest, LibraryWithoutGroupsLeavesOnlyTheBackup) {
    library.NewMainNode("Lib");
    files.contents[kFile] = "old";
    EXPECT_FALSE(Write());
    EXPECT_EQ(files.contents.at(kBackup), "old");
    EXPECT_FALSE(files.contents.contains(kFile));
    ASSERT_EQ(prompts.messages.size(), 1U);
    EXPECT_EQ(prompts.messages[0], (FakePrompts::Message{"<103>", 64, "<30>"}));
}

TEST_F(ShownLibraryFilesTest,
       CharactersThatTheCodePageCannotHoldAreReportedBeforeAnythingIsWritten) {
    library.NewMainNode("日本");
    library.NewGroupNode("0D", "日");
    files.contents[kFile] = "old";
    prompts.answers = {Answer::Cancel};
    EXPECT_FALSE(Write());
    ASSERT_EQ(prompts.messages.size(), 1U);
    EXPECT_EQ(prompts.messages[0], (FakePrompts::Message{"<104>\r\n日本", 49, "<98>"}));
    EXPECT_EQ(files.contents.at(kFile), "old");
    EXPECT_EQ(files.contents.size(), 1U);
}

TEST_F(ShownLibraryFilesTest, UserMayGoOnAndTheCharactersBecomeQuestionMarks) {
    library.NewMainNode("日本");
    library.NewGroupNode("0D", "g");
    prompts.answers = {Answer::Ok};
    EXPECT_TRUE(Write());
    EXPECT_EQ(files.contents.at(kFile), "\"D#?\?=0D:1\"\r\n\"G#g=0DG1\"\r\n");
}

TEST_F(ShownLibraryFilesTest, WhicheverStepFailsTheOldOrNewContentIsWholeUnderNameOrBackup) {
    MakeLibrary();
    ASSERT_TRUE(Write());
    for (const bool backups : {true, false})
        for (const auto kind : {FakeFiles::FailureKind::Reported, FakeFiles::FailureKind::Killed})
            for (int step = 1;; ++step) {
                settings.createBackups = backups;
                files.contents = {{kFile, "old"}};
                files.FailAtStep(step, kind);
                bool written = false;
                try {
                    written = Write();
                } catch (const FakeFiles::Killed&) {
                    written = false;
                }
                const bool failed = files.Steps() >= step;
                EXPECT_EQ(written, !failed) << "step " << step;
                const std::string now = files.contents.contains(kFile) ? files.contents.at(kFile)
                                                                       : files.contents.at(kBackup);
                EXPECT_TRUE(now == "old" || now == kGolden) << "step " << step << ": " << now;
                if (!failed)
                    break;
            }
}

TEST_F(ShownLibraryFilesTest, LockedTargetKeepsItsContentAndLeavesNothingBesideIt) {
    MakeLibrary();
    files.contents[kFile] = "old";
    files.locked[kFile] = true;
    for (const bool backups : {true, false}) {
        settings.createBackups = backups;
        EXPECT_FALSE(Write());
        EXPECT_EQ(files.contents.size(), 1U);
        EXPECT_EQ(files.contents.at(kFile), "old");
    }
}

TEST_F(ShownLibraryFilesTest, UndeclaredGroupComesBeforeABrokenValue) {
    EXPECT_FALSE(
        Read("\"D#L=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG7:" + ValuesOf("a", "x") + "\"\r\n"));
    ExpectInvalidFileMessage();
}

TEST_F(ShownLibraryFilesTest, UnstorableCharacterIsToldOnce) {
    library.NewMainNode("日本");
    library.NewGroupNode("0D", "本日");
    prompts.answers = {Answer::Cancel};
    EXPECT_FALSE(Write());
    EXPECT_EQ(prompts.messages.at(0).prompt, "<104>\r\n日本");
}

TEST_F(ShownLibraryFilesTest, LibraryWithoutGroupsLeavesTheFileWithBackupsOff) {
    library.NewMainNode("Lib");
    settings.createBackups = false;
    files.contents[kFile] = "old";
    EXPECT_FALSE(Write());
    EXPECT_EQ(files.contents.at(kFile), "old");
    EXPECT_EQ(prompts.messages.size(), 1U);
}

} // namespace
