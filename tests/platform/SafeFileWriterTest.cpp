// Rules: Library files
#include "library/SafeFileWriter.h"

#include "platform/KernelHandle.h"
#include "platform/Utf16.h"
#include "platform/Win32Files.h"
#include "tests/platform/ScratchFolder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

constexpr std::string_view kOld = "old content";
constexpr std::string_view kNew = "new content, which is longer";

// A file and its backup that other programs use as well.
class SharedFile : public testing::Test {
protected:
    SharedFile() {
        folder.Write("a.tnt", kOld);
        folder.Write("a.tnt.bak", "older");
    }

    [[nodiscard]] bool Save() {
        return SafeFileWriter(files).Write(folder.File("a.tnt"), kNew, true) == Exchanged::Done;
    }
    void ExpectOldFileAndBackup() {
        EXPECT_EQ(folder.Read("a.tnt"), kOld);
        EXPECT_EQ(folder.Read("a.tnt.bak"), "older");
    }

    ScratchFolder folder;
    Win32Files files;
};

} // namespace

TEST_F(SharedFile, BackupThatAnotherProgramReadsKeepsFileAndBackup) {
    KernelHandle held(CreateFileW(ToUtf16(folder.File("a.tnt.bak")).c_str(), GENERIC_READ,
                                  FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                                  nullptr));
    ASSERT_TRUE(held);
    EXPECT_FALSE(Save());
    ASSERT_TRUE(held.Close());
    ExpectOldFileAndBackup();
    EXPECT_FALSE(files.Exists(folder.File("a.tnt.saving")));
}

TEST_F(SharedFile, SaveWhileAnotherProgramSavesToItMixesNothing) {
    const std::unique_ptr<OutputFile> another = files.Create(folder.File("a.tnt.saving"));
    ASSERT_NE(another, nullptr);
    ASSERT_TRUE(another->Write("half of another's"));
    EXPECT_TRUE(Save());
    ASSERT_TRUE(another->Close());
    EXPECT_EQ(folder.Read("a.tnt.saving"), "half of another's");
    EXPECT_EQ(folder.Read("a.tnt"), kNew);
    EXPECT_EQ(folder.Read("a.tnt.bak"), kOld);
}

TEST_F(SharedFile, LongestNamesAreSavedWithNothingLeftBeside) {
    for (std::size_t length = 245; length <= 255; ++length) {
        const std::string path = folder.File(std::string(length - 4, 'x') + ".tnt");
        for (const std::string_view content : {kOld, kNew}) {
            EXPECT_EQ(SafeFileWriter(files).Write(path, content, false), Exchanged::Done) << length;
            EXPECT_EQ(files.ReadWhole(path), content) << length;
        }
        EXPECT_TRUE(files.Remove(path));
    }
    EXPECT_EQ(files.FindNormalFile(folder.File("x*")), "");
}

TEST_F(SharedFile, BackupThatCannotHaveItsLongNameKeepsTheFile) {
    const std::string path = folder.File(std::string(248, 'x') + ".tnt");
    ASSERT_EQ(SafeFileWriter(files).Write(path, kOld, false), Exchanged::Done);
    EXPECT_EQ(SafeFileWriter(files).Write(path, kNew, true), Exchanged::Unchanged);
    EXPECT_EQ(files.ReadWhole(path), kOld);
    EXPECT_TRUE(files.Remove(path)); // too long for the folder to clear
}
