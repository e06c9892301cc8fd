// Rules: Library files
// Reading and writing without anybody in front of it: what comes back, and what is told meanwhile.

#include "library/LibraryFiles.h"

#include "tests/fakes/FakeCalendarClock.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/FakeFiles.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kFile = "C:\\a.tnt";
constexpr const char* kContent = "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n\"G#h=0DG2\"\r\n";

// What was told, with the number of libraries that there were.
class WrittenProgress : public WorkProgress {
public:
    explicit WrittenProgress(const ColorLibrary& library) : library_(library) {}

    void Starts(std::int32_t total) override { Note("starts " + std::to_string(total)); }
    void Reaches(std::int32_t done) override { Note("reaches " + std::to_string(done)); }

    std::vector<std::string> told;

private:
    void Note(const std::string& text) {
        told.push_back(text + " of " + std::to_string(library_.Tree().MainNodes().size()));
    }

    const ColorLibrary& library_;
};

class LibraryFilesTest : public testing::Test {
protected:
    ReadOutcome Read(const std::string& content) {
        files.contents[kFile] = content;
        return libraryFiles.Read(kFile, progress);
    }

    FakeFiles files;
    FakeCodePage codePage = FakeCodePage::Western();
    FakeCalendarClock clock;
    ColorLibrary library;
    LibraryFiles libraryFiles{library, {.files = files, .codePage = codePage, .clock = clock}};
    WrittenProgress progress{library};
};

TEST_F(LibraryFilesTest, ReadingTellsItsStartBeforeAnythingChangesAndEachLine) {
    const ReadOutcome outcome = Read(kContent);
    EXPECT_EQ(outcome.result, ReadResult::Complete);
    EXPECT_EQ(outcome.mainKey, "0D");
    EXPECT_FALSE(outcome.error.has_value());
    EXPECT_EQ(progress.told,
              (std::vector<std::string>{"starts 2 of 0", "reaches 1 of 1", "reaches 2 of 1"}));
}

TEST_F(LibraryFilesTest, FileWithoutAHeaderAddsNoLibraryAndStartsNothing) {
    const ReadOutcome outcome = Read("rubbish");
    EXPECT_EQ(outcome.result, ReadResult::Invalid);
    EXPECT_EQ(outcome.mainKey, "");
    EXPECT_TRUE(progress.told.empty());
}

TEST_F(LibraryFilesTest, PartOfALibraryIsInvalidAndNamesWhatWasAdded) {
    const ReadOutcome outcome = Read(std::string(kContent) + "\"G#broken\"\r\n");
    EXPECT_EQ(outcome.result, ReadResult::Invalid);
    EXPECT_EQ(outcome.mainKey, "0D");
    EXPECT_EQ(library.Tree().At("0D").file, kFile);
    EXPECT_EQ(library.Tree().At("0D").source, kFile);
}

TEST_F(LibraryFilesTest, ValueThatDoesNotConvertFailsWithItsPlaceAndNamesWhatWasAdded) {
    std::string color = "\"E#a=0DG1:a\xF7"
                        "99999";
    for (int value = 2; value <= 9; ++value)
        color += "\xF7" + std::to_string(value);
    const ReadOutcome outcome = Read(kContent + color + "\"\r\n");
    EXPECT_EQ(outcome.result, ReadResult::Failed);
    EXPECT_EQ(outcome.mainKey, "0D");
    ASSERT_TRUE(outcome.error.has_value());
    EXPECT_EQ(outcome.error->Number(), ErrorNumber::Overflow);
    EXPECT_NE(outcome.error->Description().find(kFile), std::string::npos);
    EXPECT_NE(outcome.error->Description().find('4'), std::string::npos) << "the line";
}

TEST_F(LibraryFilesTest, ComposingGivesTheBytesAndWhatWouldBeLostAndWritesNothing) {
    library.NewMainNode("Lib");
    library.NewGroupNode("0D", "g=h \u8272");
    const ComposedLibrary composed = libraryFiles.Compose("0D", progress);
    EXPECT_EQ(composed.bytes, "\"D#Lib=0D:1\"\r\n\"G#g=h ?=0DG1\"\r\n");
    EXPECT_EQ(composed.losses.names, std::vector<std::string>{"g=h \u8272"});
    EXPECT_EQ(composed.losses.characters, "\u8272");
    EXPECT_EQ(progress.told, (std::vector<std::string>{"starts 1 of 1", "reaches 1 of 1"}));
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(LibraryFilesTest, WrittenFileIsTheLibrarysSourceAndItsFileStaysAsItWas) {
    library.NewMainNode("Lib");
    EXPECT_TRUE(libraryFiles.Write({.fileName = kFile, .mainKey = "0D"}, "bytes").isWritten);
    EXPECT_EQ(files.contents.at(kFile), "bytes");
    EXPECT_EQ(library.Tree().At("0D").source, kFile);
    EXPECT_EQ(library.Tree().At("0D").file, std::nullopt);
}

TEST_F(LibraryFilesTest, BackingUpMovesTheFileOrSaysThatItCouldNot) {
    library.NewMainNode("Lib");
    const SaveTarget target{.fileName = kFile, .mainKey = "0D", .unknown = UnknownContent::GivenUp};
    EXPECT_EQ(libraryFiles.BackUp(target), "") << "there was nothing to keep";
    files.contents[kFile] = kContent;
    EXPECT_EQ(libraryFiles.BackUp(target), "");
    EXPECT_EQ(files.contents.count(kFile), 0U);
    files.contents[kFile] = kContent;
    files.FailAtStep(1, FakeFiles::FailureKind::FromHereOn);
    EXPECT_EQ(libraryFiles.BackUp(target), std::nullopt);
    EXPECT_EQ(files.contents.at(kFile), kContent);
}

} // namespace
