// Rules: Library files
// Library files as they lie on a disk, each with what it must become, and back to the same bytes.

#include "common/RuntimeError.h"
#include "tests/fakes/GoldenFile.h"
#include "tests/fakes/LibraryOnFakes.h"
#include "tests/fakes/LibraryOutline.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

constexpr const char* kFile = "C:\\golden.tnt";
constexpr const char* kGold = "0DG1E1 in 0DG1: Gold (Gold) 255 206 77 20 70 60 50 0 0";

class GoldenFiles : public testing::Test, protected LibraryOnFakes {
protected:
    bool ReadBytes(const std::string& bytes) {
        files.contents[kFile] = bytes;
        return libraryFiles.FileReadColorValues(kFile);
    }
    void ExpectLoads(const std::string& name, const Lines& outline) {
        EXPECT_TRUE(ReadBytes(GoldenFile(name)));
        EXPECT_EQ(OutlineOf(library), outline);
        EXPECT_TRUE(prompts.messages.empty());
        EXPECT_EQ(library.Tree().At("0D").file, kFile);
    }
    void ExpectIsInvalid(const std::string& name, const Lines& outline) {
        EXPECT_FALSE(ReadBytes(GoldenFile(name)));
        EXPECT_EQ(OutlineOf(library), outline);
        EXPECT_EQ(prompts.messages,
                  (std::vector<FakePrompts::Message>{{"<5> C:\\golden.tnt", 48, "<98>"}}));
        EXPECT_FALSE(progress.isShown);
    }
    void ExpectIsWrittenAs(const std::string& bytes) {
        settings.createBackups = false;
        EXPECT_TRUE(libraryFiles.FileWriteColorValues(kFile, "0D").isWritten);
        EXPECT_EQ(files.contents.at(kFile), bytes);
    }
    // Reads a golden file that the program could have written, and writes it again.
    void ExpectComesBackByteForByte(const std::string& name, const Lines& outline) {
        ExpectLoads(name, outline);
        ExpectIsWrittenAs(GoldenFile(name));
    }
};

TEST_F(GoldenFiles, PlainLibraryComesBackByteForByte) {
    ExpectComesBackByteForByte("plain.tnt",
                               {"0D Materials", "0DG1 Metals", "0DG2 Woods", "0DG3 Empty", kGold,
                                "0DG2E2 in 0DG2: Oak (Eiche) 160 110 60 30 80 10 20 0 0",
                                "0DG1E3 in 0DG1: Extreme (Extreme) -32768 32767 -1 0 1 100 100 "
                                "100 100"});
}

TEST_F(GoldenFiles, UmlautsComeBackByteForByte) {
    ExpectComesBackByteForByte("umlauts.tnt",
                               {"0D Stähle", "0DG1 Größe",
                                "0DG1E1 in 0DG1: Grün 5 € (Grünspan) 255 206 77 20 70 60 50 0 0"});
}

TEST_F(GoldenFiles, ColonsComeBackByteForByteAndOnlyTheBarTakesTheFirstForItsCount) {
    ExpectComesBackByteForByte(
        "colons.tnt",
        {"0D A:7B", "0DG1 g:h", "0DG1E1 in 0DG1: a:b (:c:d) 255 206 77 20 70 60 50 0 0"});
    EXPECT_EQ(progress.calls.at(0), "show <60> 0..7") << "what follows the first colon of the line";
}

TEST_F(GoldenFiles, QuotesInNamesComeBackByteForByte) {
    ExpectComesBackByteForByte(
        "quotes.tnt",
        {"0D \"A\" b", "0DG1 \"", "0DG1E1 in 0DG1: \"\" (\"x\") 255 206 77 20 70 60 50 0 0"});
}

TEST_F(GoldenFiles, EmptyNamesComeBackByteForByte) {
    ExpectComesBackByteForByte("empty-names.tnt",
                               {"0D ", "0DG1 ", "0DG1E1 in 0DG1:  () 255 206 77 20 70 60 50 0 0"});
}

TEST_F(GoldenFiles, ZeroBytesComeBackByteForByte) {
    const std::string zero(1, '\0');
    ExpectComesBackByteForByte("zero-bytes.tnt", {"0D L" + zero + "b", "0DG1 " + zero,
                                                  "0DG1E1 in 0DG1: a" + zero + " (" + zero +
                                                      "b) 255 206 77 20 70 60 50 0 0"});
}

TEST_F(GoldenFiles, LineOf200000CharactersComesBackByteForByte) {
    const std::string name(200000, 'n');
    const std::string bytes = "\"D#Lib=0D:1\"\r\n\"G#" + name + "=0DG1\"\r\n";
    EXPECT_TRUE(ReadBytes(bytes));
    EXPECT_EQ(OutlineOf(library), (Lines{"0D Lib", "0DG1 " + name}));
    ExpectIsWrittenAs(bytes);
}

TEST_F(GoldenFiles, NamesAreCutAtTheirFirstEqualsSign) {
    ExpectLoads("equals-signs.tnt", {"0D A", "0DG1 g", "0DG2 "});
    ExpectIsWrittenAs("\"D#A=0D:2\"\r\n\"G#g=0DG1\"\r\n\"G#=0DG2\"\r\n");
}

TEST_F(GoldenFiles, EqualsSignInAGroupNameMakesItsColorsThoseOfAnUndeclaredGroup) {
    ExpectIsInvalid("equals-sign-in-a-group-of-colors.tnt",
                    {"0D Lib", "0DG1 plain", "0DG2 g", kGold});
}

TEST_F(GoldenFiles, EqualsSignInAColorNameMakesTheFileInvalid) {
    ExpectIsInvalid("equals-sign-in-a-color.tnt", {"0D Lib", "0DG1 g", kGold});
}

TEST_F(GoldenFiles, DivisionSignInAnAltNameMakesTheFileInvalid) {
    ExpectIsInvalid("division-sign-in-a-name.tnt", {"0D Lib", "0DG1 a÷b"});
}

TEST_F(GoldenFiles, LibraryWithoutGroupsIsReadButNeverWritten) {
    ExpectLoads("no-groups.tnt", {"0D Alone"});
    settings.createBackups = false;
    EXPECT_FALSE(libraryFiles.FileWriteColorValues(kFile, "0D").isWritten);
    EXPECT_EQ(files.contents.at(kFile), GoldenFile("no-groups.tnt"));
    EXPECT_EQ(prompts.messages, (std::vector<FakePrompts::Message>{{"<103>", 64, "<30>"}}));
}

TEST_F(GoldenFiles, UnknownRecordsAreSkippedButMoveTheBar) {
    ExpectLoads("unknown-records.tnt", {"0D Lib", "0DG1 g", kGold});
    EXPECT_EQ(progress.calls,
              (Lines{"show <60> 0..9", "value 1", "value 2", "value 3", "value 4", "value 5",
                     "value 6", "value 7", "value 8", "value 9", "hide"}));
}

TEST_F(GoldenFiles, LastLineMayLackItsEnd) {
    ExpectLoads("no-final-line-end.tnt", {"0D Lib", "0DG1 g", kGold});
    ExpectIsWrittenAs(GoldenFile("no-final-line-end.tnt") + "\r\n");
}

TEST_F(GoldenFiles, LineFeedsAloneEndLinesToo) {
    ExpectLoads("line-feeds.tnt", {"0D Lib", "0DG1 g", kGold});
}

TEST_F(GoldenFiles, ByteOrderMarkMakesTheFileInvalid) {
    ExpectIsInvalid("byte-order-mark.tnt", {});
}

TEST_F(GoldenFiles, EmptyFileIsInvalid) {
    ExpectIsInvalid("empty.tnt", {});
}

TEST_F(GoldenFiles, FileWithoutAHeaderIsInvalidAndAddsNothing) {
    ExpectIsInvalid("bad-header.tnt", {});
}

TEST_F(GoldenFiles, ColorWithOtherThanTenFieldsEndsTheLoadAndWhatWasAddedStays) {
    ExpectIsInvalid("wrong-field-count.tnt", {"0D Lib", "0DG1 g", kGold});
}

TEST_F(GoldenFiles, ColorOfAnUndeclaredGroupEndsTheLoadAndWhatWasAddedStays) {
    ExpectIsInvalid("undeclared-group.tnt", {"0D Lib", "0DG1 g", kGold});
}

TEST_F(GoldenFiles, ValueBeyond16BitsIsAnOverflowAndWhatWasAddedStays) {
    try {
        ReadBytes(GoldenFile("value-beyond-16-bits.tnt"));
        FAIL() << "the value was taken";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::Overflow);
    }
    EXPECT_EQ(OutlineOf(library), (Lines{"0D Lib", "0DG1 g", kGold}));
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_FALSE(progress.isShown);
}

TEST_F(GoldenFiles, InvalidFileLeavesLibrariesThatAreOpenAsTheyAre) {
    ASSERT_TRUE(ReadBytes(GoldenFile("umlauts.tnt")));
    const Lines before = OutlineOf(library);
    EXPECT_FALSE(ReadBytes(GoldenFile("byte-order-mark.tnt")));
    EXPECT_EQ(OutlineOf(library), before);
}

TEST_F(GoldenFiles, SameFileTwiceIsTwoLibrariesAndTheSecondIsWrittenWithItsOwnKeys) {
    ASSERT_TRUE(ReadBytes(GoldenFile("umlauts.tnt")));
    ASSERT_TRUE(ReadBytes(GoldenFile("umlauts.tnt")));
    std::string renumbered = GoldenFile("umlauts.tnt");
    for (std::size_t at = 0; (at = renumbered.find("=0D", at)) != std::string::npos; ++at)
        renumbered[at + 1] = '1';
    ASSERT_TRUE(libraryFiles.FileWriteColorValues(kFile, "1D").isWritten);
    EXPECT_EQ(files.contents.at(kFile), renumbered);
}

} // namespace
