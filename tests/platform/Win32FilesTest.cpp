// Rules: Library files
#include "platform/Win32Files.h"

#include "platform/KernelHandle.h"
#include "platform/ReplaceFailure.h"
#include "platform/Utf16.h"
#include "tests/platform/ScratchFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <windows.h>

namespace {

bool IsWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

FILETIME CreationTime(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    EXPECT_TRUE(GetFileAttributesExW(ToUtf16(path).c_str(), GetFileExInfoStandard, &data));
    return data.ftCreationTime;
}

void SetCreationTime(const std::string& path, const FILETIME& time) {
    const KernelHandle file(CreateFileW(ToUtf16(path).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(SetFileTime(file.Get(), &time, nullptr, nullptr));
}

class Win32FilesTest : public testing::Test {
protected:
    void WriteThroughPort(const std::string& path, std::string_view bytes) {
        const std::unique_ptr<OutputFile> file = files.Create(path);
        ASSERT_NE(file, nullptr) << path;
        EXPECT_TRUE(file->Write(bytes));
        EXPECT_TRUE(file->Flush());
        EXPECT_TRUE(file->Close());
    }

    ScratchFolder folder;
    Win32Files files;
};

} // namespace

TEST_F(Win32FilesTest, WhatIsWrittenIsReadBackByteForByte) {
    const std::string bytes("a\r\n\x1A\0\xF7z", 7);
    WriteThroughPort(folder.File("x.tnt"), bytes);
    EXPECT_EQ(folder.Read("x.tnt"), bytes);
    EXPECT_EQ(files.ReadWhole(folder.File("x.tnt")), bytes);
}

TEST_F(Win32FilesTest, LargeFileIsReadWhole) {
    std::string bytes(40U << 20U, 'x');
    bytes.back() = 'z';
    WriteThroughPort(folder.File("x.tnt"), bytes);
    EXPECT_EQ(files.ReadWhole(folder.File("x.tnt")), bytes);
}

TEST_F(Win32FilesTest, EmptyFileIsReadAsEmptyText) {
    folder.Write("x.tnt", "");
    EXPECT_EQ(files.ReadWhole(folder.File("x.tnt")), "");
}

TEST_F(Win32FilesTest, MissingFileFolderAndEmptyNameCannotBeRead) {
    EXPECT_FALSE(files.ReadWhole(folder.File("none.tnt")));
    EXPECT_FALSE(files.ReadWhole(folder.Path()));
    EXPECT_FALSE(files.ReadWhole(""));
}

TEST_F(Win32FilesTest, OneFileIsTheSameByEachOfItsNames) {
    WriteThroughPort(folder.File("\xC3\xA4.tnt"), "x");
    WriteThroughPort(folder.File("b.tnt"), "x");
    EXPECT_TRUE(files.AreSame(folder.File("\xC3\xA4.tnt"), folder.File("\xC3\x84.TNT")));
    EXPECT_TRUE(files.AreSame(folder.File("b.tnt"), folder.File(".\\b.tnt")));
    EXPECT_FALSE(files.AreSame(folder.File("b.tnt"), folder.File("\xC3\xA4.tnt")));
    EXPECT_FALSE(files.AreSame(folder.File("b.tnt"), folder.File("none.tnt")));
    EXPECT_FALSE(files.AreSame(folder.File("none.tnt"), folder.File("none.tnt")));
}

TEST_F(Win32FilesTest, NamesOutsideTheCodePageWork) {
    const std::string name = "\xE8\x89\xB2\xC3\xBC\xD1\x86.tnt";
    WriteThroughPort(folder.File(name), "x");
    EXPECT_EQ(files.FindNormalFile(folder.File("*.tnt")), name);
    EXPECT_TRUE(files.Exists(folder.File(name)));
    EXPECT_EQ(files.ReadWhole(folder.File(name)), "x");
    EXPECT_TRUE(files.Remove(folder.File(name)));
}

TEST_F(Win32FilesTest, EveryOperationWorksOnPathsOfMoreThan260Characters) {
    std::string deep = folder.Path();
    for (int level = 0; level < 4; ++level) {
        deep += "\\" + std::string(100, static_cast<char>('a' + level));
        CreateDirectoryW((LR"(\\?\)" + ToUtf16(deep)).c_str(), nullptr);
    }
    const std::string path = deep + "\\x.tnt";
    WriteThroughPort(path, "deep");
    EXPECT_TRUE(files.Exists(path));
    EXPECT_EQ(files.FindNormalFile(path), "x.tnt");
    EXPECT_TRUE(files.Replace(path, path + ".bak"));
    EXPECT_EQ(files.ReadWhole(path + ".bak"), "deep");
    EXPECT_TRUE(files.Remove(path + ".bak"));
    EXPECT_FALSE(files.Exists(path + ".bak"));
}

TEST_F(Win32FilesTest, NameThatIsTakenIsNotCreated) {
    folder.Write("x.tnt", "old content");
    std::filesystem::create_directory(ToUtf16(folder.File("folder")));
    for (const char* name : {"x.tnt", "folder"}) {
        EXPECT_TRUE(files.IsTaken(folder.File(name)));
        EXPECT_EQ(files.Create(folder.File(name)), nullptr);
    }
    EXPECT_EQ(folder.Read("x.tnt"), "old content");
    EXPECT_FALSE(files.IsTaken(folder.File("none")));
}

TEST_F(Win32FilesTest, RenameNeverReplaces) {
    folder.Write("new", "new content");
    folder.Write("old", "old content");
    EXPECT_FALSE(files.Rename(folder.File("new"), folder.File("old")));
    EXPECT_EQ(folder.Read("old"), "old content");
    EXPECT_TRUE(files.Rename(folder.File("new"), folder.File("other")));
    EXPECT_EQ(folder.Read("other"), "new content");
}

TEST_F(Win32FilesTest, ExchangeGivesTheOldFileItsBackupNameAndReplacesAnOlderOne) {
    folder.Write("new", "new content");
    folder.Write("old", "old content");
    folder.Write("backup", "older content");
    EXPECT_EQ(files.Exchange(folder.File("new"), folder.File("old"), folder.File("backup")),
              Exchanged::Done);
    EXPECT_EQ(folder.Read("old"), "new content");
    EXPECT_EQ(folder.Read("backup"), "old content");
    EXPECT_FALSE(files.Exists(folder.File("new")));
}

TEST_F(Win32FilesTest, ExchangeWithoutABackupLeavesTheNewContentAlone) {
    folder.Write("new", "new content");
    folder.Write("old", "old content");
    EXPECT_EQ(files.Exchange(folder.File("new"), folder.File("old"), ""), Exchanged::Done);
    EXPECT_EQ(folder.Read("old"), "new content");
    EXPECT_FALSE(files.Exists(folder.File("new")));
}

TEST_F(Win32FilesTest, ExchangeFindsFilesOfTheCurrentFolder) {
    const std::filesystem::path before = std::filesystem::current_path();
    folder.Write("old", "a");
    folder.Write("new", "b");
    std::filesystem::current_path(ToUtf16(folder.Path()));
    const Exchanged outcome = files.Exchange("new", "old", "backup");
    std::filesystem::current_path(before);
    EXPECT_EQ(outcome, Exchanged::Done);
    EXPECT_EQ(folder.Read("old"), "b");
    EXPECT_EQ(folder.Read("backup"), "a");
}

TEST_F(Win32FilesTest, ExchangeWithAFileInUseOrMarkedReadOnlyChangesNothing) {
    folder.Write("new", "new content");
    folder.Write("old", "old content");
    folder.Write("backup", "older content");
    const auto exchange = [&] {
        return files.Exchange(folder.File("new"), folder.File("old"), folder.File("backup"));
    };
    for (const char* name : {"old", "backup"}) {
        folder.SetAttributes(name, FILE_ATTRIBUTE_READONLY);
        EXPECT_EQ(exchange(), Exchanged::Unchanged) << name;
        folder.SetAttributes(name, FILE_ATTRIBUTE_NORMAL);
        KernelHandle inUse(CreateFileW(ToUtf16(folder.File(name)).c_str(), GENERIC_READ,
                                       FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_EQ(exchange(), Exchanged::Unchanged) << name;
        EXPECT_TRUE(inUse.Close());
    }
    EXPECT_EQ(folder.Read("new") + folder.Read("old") + folder.Read("backup"),
              "new contentold contentolder content");
}

TEST_F(Win32FilesTest, ExchangeKeepsCreationTimeAttributesAndAlternateStreamsOfThePlace) {
    if (IsWine())
        GTEST_SKIP() << "Wine's ReplaceFile gives the place nothing of the old file";
    const FILETIME longAgo{0, 0x01C00000}; // of the year 2000
    folder.Write("old", "old content");
    folder.Write("old:note", "of the old file");
    folder.SetAttributes("old", FILE_ATTRIBUTE_HIDDEN);
    SetCreationTime(folder.File("old"), longAgo);
    for (const char* backup : {"backup", ""}) {
        folder.Write("new", "new content");
        ASSERT_EQ(files.Exchange(folder.File("new"), folder.File("old"),
                                 *backup == 0 ? "" : folder.File(backup)),
                  Exchanged::Done);
        const FILETIME created = CreationTime(folder.File("old"));
        EXPECT_EQ(CompareFileTime(&created, &longAgo), 0);
        EXPECT_EQ(files.ReadWhole(folder.File("old:note")), "of the old file");
        EXPECT_NE(GetFileAttributesW(ToUtf16(folder.File("old")).c_str()) & FILE_ATTRIBUTE_HIDDEN,
                  0U);
    }
}

// What the call leaves when it fails in its middle is written down by the platform's makers.
TEST(AfterFailedReplace, TellsWhatIsLeft) {
    EXPECT_EQ(AfterFailedReplace(ERROR_UNABLE_TO_REMOVE_REPLACED, true), Exchanged::Unchanged);
    EXPECT_EQ(AfterFailedReplace(ERROR_UNABLE_TO_REMOVE_REPLACED, false), Exchanged::Unchanged);
    EXPECT_EQ(AfterFailedReplace(ERROR_UNABLE_TO_MOVE_REPLACEMENT, true), Exchanged::Unchanged);
    EXPECT_EQ(AfterFailedReplace(ERROR_UNABLE_TO_MOVE_REPLACEMENT, false), Exchanged::OldIsGone);
    EXPECT_EQ(AfterFailedReplace(ERROR_UNABLE_TO_MOVE_REPLACEMENT_2, true), Exchanged::OldIsBackup);
    EXPECT_EQ(AfterFailedReplace(ERROR_NOT_SUPPORTED, true), Exchanged::NotSupported);
    EXPECT_EQ(AfterFailedReplace(ERROR_INVALID_LEVEL, true), Exchanged::NotSupported);
    EXPECT_EQ(AfterFailedReplace(ERROR_NOT_SAME_DEVICE, true), Exchanged::NotSupported);
    EXPECT_EQ(AfterFailedReplace(ERROR_INVALID_FUNCTION, false), Exchanged::NotSupported);
    EXPECT_EQ(AfterFailedReplace(ERROR_SHARING_VIOLATION, true), Exchanged::Unchanged);
    EXPECT_EQ(AfterFailedReplace(ERROR_ACCESS_DENIED, false), Exchanged::Unchanged);
}

TEST_F(Win32FilesTest, FileThatIsBeingWrittenIsNobodyElses) {
    const std::unique_ptr<OutputFile> file = files.Create(folder.File("x.tnt"));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(files.Create(folder.File("x.tnt")), nullptr);
    EXPECT_FALSE(files.ReadWhole(folder.File("x.tnt")));
}

TEST_F(Win32FilesTest, FileCannotBeMadeInAMissingFolder) {
    EXPECT_EQ(files.Create(folder.File("none\\x.tnt")), nullptr);
}

TEST_F(Win32FilesTest, DestroyedFileIsClosed) {
    { const std::unique_ptr<OutputFile> file = files.Create(folder.File("x.tnt")); }
    EXPECT_TRUE(files.ReadWhole(folder.File("x.tnt")));
}

TEST_F(Win32FilesTest, ClosedFileTakesNothingMore) {
    const std::unique_ptr<OutputFile> file = files.Create(folder.File("x.tnt"));
    ASSERT_TRUE(file->Close());
    EXPECT_FALSE(file->Write("x"));
    EXPECT_FALSE(file->Write(""));
    EXPECT_FALSE(file->Flush());
    EXPECT_FALSE(file->Close());
}

TEST_F(Win32FilesTest, ReplaceTakesThePlaceOfAnExistingFile) {
    folder.Write("new", "new content");
    folder.Write("old", "old content");
    EXPECT_TRUE(files.Replace(folder.File("new"), folder.File("old")));
    EXPECT_EQ(folder.Read("old"), "new content");
    EXPECT_FALSE(files.Exists(folder.File("new")));
}

TEST_F(Win32FilesTest, ReplaceOntoAFileInUseFailsAndChangesNothing) {
    folder.Write("new", "new content");
    const std::unique_ptr<OutputFile> inUse = files.Create(folder.File("old"));
    EXPECT_FALSE(files.Replace(folder.File("new"), folder.File("old")));
    EXPECT_EQ(folder.Read("new"), "new content");
}

TEST_F(Win32FilesTest, RemoveReportsWhetherTheFileIsGone) {
    folder.Write("x", "");
    EXPECT_TRUE(files.Remove(folder.File("x")));
    EXPECT_FALSE(files.Remove(folder.File("x")));
}

TEST_F(Win32FilesTest, FindGivesTheNameWithoutItsFolder) {
    folder.Write("colors.tnt", "");
    EXPECT_EQ(files.FindNormalFile(folder.File("COLORS.*")), "colors.tnt");
    EXPECT_EQ(files.FindNormalFile(folder.File("colors.tnt")), "colors.tnt");
}

TEST_F(Win32FilesTest, FindSkipsFoldersHiddenAndSystemFiles) {
    std::filesystem::create_directory(ToUtf16(folder.File("a.tnt")));
    folder.Write("b.tnt", "");
    folder.Write("c.tnt", "");
    folder.SetAttributes("b.tnt", FILE_ATTRIBUTE_HIDDEN);
    folder.SetAttributes("c.tnt", FILE_ATTRIBUTE_SYSTEM);
    EXPECT_EQ(files.FindNormalFile(folder.File("*.tnt")), "");
    folder.Write("d.tnt", "");
    folder.SetAttributes("d.tnt", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(files.FindNormalFile(folder.File("*.tnt")), "d.tnt");
    folder.SetAttributes("d.tnt", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Win32FilesTest, FindGivesNothingForFoldersAndImpossiblePaths) {
    folder.Write("x.tnt", "");
    EXPECT_EQ(files.FindNormalFile(folder.Path()), "");
    EXPECT_EQ(files.FindNormalFile(folder.Path() + "\\"), "");
    EXPECT_EQ(files.FindNormalFile(folder.Path() + "/"), "");
    EXPECT_EQ(files.FindNormalFile(folder.File("none\\*.tnt")), "");
    EXPECT_EQ(files.FindNormalFile(""), "");
    EXPECT_EQ(files.FindNormalFile("<|>:"), "");
}

TEST_F(Win32FilesTest, ExistsSeesHiddenFilesButNoFoldersAndNoWildcards) {
    folder.Write("x.tnt", "");
    folder.SetAttributes("x.tnt", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    EXPECT_TRUE(files.Exists(folder.File("x.tnt")));
    EXPECT_FALSE(files.Exists(folder.File("*.tnt")));
    EXPECT_FALSE(files.Exists(folder.Path()));
}
