// Rules: Library files
#include "platform/Utf16.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/faults/DyingFiles.h"
#include "tests/faults/PreparedPlaces.h"
#include "tests/faults/RealLibrary.h"
#include "tests/faults/SecondProcess.h"
#include "tests/platform/PollUntil.h"
#include "tests/platform/ScratchFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <windows.h>

namespace {

using Message = FakePrompts::Message;

constexpr const char* kOld = "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n"
                             "\"E#old=0DG1:old\xF7"
                             "1\xF7"
                             "2\xF7"
                             "3\xF7"
                             "4\xF7"
                             "5\xF7"
                             "6\xF7"
                             "7\xF7"
                             "8\xF7"
                             "9\"\r\n";

class FileFaults : public testing::Test {
protected:
    FileFaults() { folder.Write("a.tnt", kOld); }

    [[nodiscard]] static Message SaveFailed(const std::string& path) {
        return {"<4>" + path, 16, "<98>"};
    }
    [[nodiscard]] static std::string Quoted(const std::string& text) { return '"' + text + '"'; }
    [[nodiscard]] std::optional<std::string> Content(const std::string& path) {
        return files.ReadWhole(path);
    }
    // What "--save" makes of the old content.
    [[nodiscard]] std::string NewContent() {
        folder.Write("new.tnt", kOld);
        const RunningProgram save(SecondProcess("--save " + Quoted(folder.File("new.tnt"))));
        EXPECT_EQ(save.WaitForExitCode(), 0U);
        return Content(folder.File("new.tnt")).value_or("");
    }
    // A process that keeps the file to itself, once it has it.
    [[nodiscard]] std::unique_ptr<RunningProgram> Holder(const std::string& path) {
        auto holder = std::make_unique<RunningProgram>(SecondProcess("--hold " + Quoted(path)));
        EXPECT_TRUE(PollUntil([&] { return !Content(path); }));
        return holder;
    }

    Win32Files files;
    ScratchFolder folder;
};

TEST_F(FileFaults, ProcessKilledAtAnyStepOfASaveLeavesTheOldOrTheNewContentWhole) {
    const std::string saved = NewContent();
    ASSERT_NE(saved, kOld);
    const std::string path = folder.File("a.tnt");
    bool completed = false;
    int step = 0;
    while (!completed && step < 50) {
        ++step;
        folder.Write("a.tnt", kOld);
        files.Remove(path + ".bak");
        const RunningProgram save(
            SecondProcess("--save-and-die " + std::to_string(step) + " " + Quoted(path)));
        const auto exitCode = save.WaitForExitCode();
        completed = exitCode == 0U;
        EXPECT_TRUE(completed || exitCode == DyingFiles::kExitCode) << "step " << step;
        const std::string found =
            Content(path).value_or(Content(path + ".bak").value_or("nothing"));
        files.Remove(path + ".saving");
        EXPECT_TRUE(found == kOld || found == saved) << "step " << step << ": " << found;
        std::cout << "killed at step " << step << ": "
                  << (found == saved  ? "new"
                      : found == kOld ? "old"
                                      : "broken")
                  << " content" << (Content(path) ? "\n" : ", as the backup\n");
    }
    EXPECT_TRUE(completed);
    EXPECT_GT(step, 5) << "create, write, flush, close and two renames at the least";
}

TEST_F(FileFaults, WhatAKilledSaveLeftBehindDoesNotHinderTheNextOne) {
    const std::string path = folder.File("a.tnt");
    const RunningProgram killed(SecondProcess("--save-and-die 3 " + Quoted(path)));
    ASSERT_EQ(killed.WaitForExitCode(), DyingFiles::kExitCode);
    const RunningProgram next(SecondProcess("--save " + Quoted(path)));
    EXPECT_EQ(next.WaitForExitCode(), 0U);
    EXPECT_TRUE(files.Exists(path + ".saving")) << "it could be somebody else's";
    EXPECT_FALSE(files.Exists(path + ".saving2"));
}

TEST_F(FileFaults, SaveOntoAFileThatAnotherProgramKeepsFailsWithAMessageAndWorksLater) {
    const std::string path = folder.File("a.tnt");
    for (const bool backups : {true, false}) {
        folder.Write("a.tnt", kOld);
        RealLibrary program(files);
        program.settings.createBackups = backups;
        program.Open(path);
        program.AddColors(1);
        {
            const auto holder = Holder(path);
            program.Save();
            EXPECT_EQ(program.prompts.messages, std::vector<Message>{SaveFailed(path)});
            EXPECT_EQ(program.library.Colors().UpperBound(), 2) << "the library keeps its colors";
        }
        ASSERT_TRUE(PollUntil([&] { return Content(path) == kOld; }));
        EXPECT_FALSE(files.Exists(path + ".bak"));
        EXPECT_FALSE(files.Exists(path + ".saving"));
        program.prompts.messages.clear();
        program.Save();
        EXPECT_TRUE(program.prompts.messages.empty());
        EXPECT_NE(Content(path), kOld);
        files.Remove(path + ".bak");
    }
}

TEST_F(FileFaults, OpenOfAFileThatAnotherProgramKeepsIsAFailedOpen) {
    const std::string path = folder.File("a.tnt");
    const auto holder = Holder(path);
    RealLibrary program(files);
    program.prompts.chosenFiles.emplace_back(path);
    program.commands.mnuFileOpen_Click();
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<6>" + path, 16, "<98>"}}));
    EXPECT_TRUE(program.library.Tree().MainNodes().empty());
}

TEST_F(FileFaults, TwoProgramsWithOneLibraryKeepTheLastSaveAndTheOneBefore) {
    const std::string path = folder.File("a.tnt");
    RealLibrary first(files);
    RealLibrary second(files);
    first.Open(path);
    second.Open(path);
    first.AddColors(1);
    second.AddColors(2);
    first.Save();
    const auto ofFirst = Content(path);
    second.Save();
    EXPECT_TRUE(first.prompts.messages.empty() && second.prompts.messages.empty());
    EXPECT_EQ(Content(path + ".bak"), ofFirst);
    const std::string kept = files.FindNormalFile(folder.File("a (kept*).tnt"));
    EXPECT_EQ(Content(folder.File(kept)), ofFirst) << "the second never had it";
    RealLibrary reader(files);
    reader.Open(path);
    EXPECT_EQ(reader.library.Colors().UpperBound(), 3);
}

TEST_F(FileFaults, ProcessThatHadTheLibraryOpenSavesItLastAndKeepsTheSaveBefore) {
    const std::string path = folder.File("a.tnt");
    const RunningProgram other(SecondProcess("--save-on-signal " + Quoted(path)));
    ASSERT_TRUE(PollUntil([&] { return files.Exists(path + ".open"); }));
    RealLibrary program(files);
    program.Open(path);
    program.AddColors(2);
    program.Save();
    EXPECT_TRUE(program.prompts.messages.empty()) << "a file that is open elsewhere is not locked";
    const auto ofThisProcess = Content(path);
    folder.Write("a.tnt.go", "");
    ASSERT_EQ(other.WaitForExitCode(), 0U);
    EXPECT_EQ(Content(path + ".bak"), ofThisProcess);
    const std::string kept = files.FindNormalFile(folder.File("a (kept*).tnt"));
    EXPECT_EQ(Content(folder.File(kept)), ofThisProcess);
    RealLibrary reader(files);
    reader.Open(path);
    ASSERT_EQ(reader.library.Colors().UpperBound(), 2) << "the old color and that of the other";
    EXPECT_TRUE(reader.library.Colors().At(2).name.starts_with("of the second process"));
}

TEST_F(FileFaults, ReadOnlyFileIsNeitherReplacedNorMadeABackup) {
    const std::string path = folder.File("a.tnt");
    for (const bool backups : {true, false}) {
        RealLibrary program(files);
        program.settings.createBackups = backups;
        program.Open(path);
        program.AddColors(1);
        folder.SetAttributes("a.tnt", FILE_ATTRIBUTE_READONLY);
        program.Save();
        EXPECT_EQ(program.prompts.messages, std::vector<Message>{SaveFailed(path)});
        EXPECT_EQ(Content(path), kOld);
        EXPECT_FALSE(files.Exists(path + ".bak"));
        folder.SetAttributes("a.tnt", FILE_ATTRIBUTE_NORMAL);
    }
}

TEST_F(FileFaults, PathsOf300CharactersWithUmlautsAndBeyondTheCodePageAreSavedAndOpened) {
    for (const std::string& name : {std::string("Grüße aus Köln.tnt"), std::string("色 цвет.tnt"),
                                    std::string(120, 'x') + "\\" + std::string(120, 'y') + "\\" +
                                        std::string(60, 'z') + ".tnt"}) {
        SCOPED_TRACE(name);
        std::filesystem::create_directories(
            std::filesystem::path(L"\\\\?\\" + ToUtf16(folder.File(name))).parent_path());
        const std::string path = folder.File(name);
        RealLibrary program(files);
        program.Open(folder.File("a.tnt"));
        program.prompts.chosenFiles.emplace_back(path);
        program.commands.mnuFileSaveAs_Click();
        EXPECT_TRUE(program.prompts.messages.empty());
        program.AddColors(1);
        program.Save();
        EXPECT_TRUE(program.prompts.messages.empty());
        RealLibrary reader(files);
        reader.Open(path);
        EXPECT_EQ(reader.library.Colors().UpperBound(), 2);
        EXPECT_TRUE(files.Exists(path + ".bak"));
    }
}

TEST_F(FileFaults, FullDiskKeepsTheOldFileAndSaysSo) {
    const std::string disk = PreparedPlace("TNT_SMALL_DISK");
    if (disk.empty())
        GTEST_SKIP() << "no small disk could be mounted here";
    const std::string path = disk + "\\a.tnt";
    ASSERT_TRUE(files.Create(path)->Write(kOld));
    RealLibrary program(files);
    program.Open(path);
    program.AddColors(300, std::string(1000, 'x')); // more than the disk holds
    program.Save();
    EXPECT_EQ(program.prompts.messages, std::vector<Message>{SaveFailed(path)});
    EXPECT_EQ(Content(path), kOld);
    EXPECT_FALSE(files.Exists(path + ".saving")) << "the disk is as free as before";
    EXPECT_EQ(program.library.Colors().UpperBound(), 301);
}

TEST_F(FileFaults, LibraryInAReadOnlyFolderOpensAndItsSaveSaysThatItFailed) {
    const std::string readOnly = PreparedPlace("TNT_READ_ONLY_FOLDER"); // holds materials.tnt
    if (readOnly.empty())
        GTEST_SKIP() << "no folder could be mounted read-only here";
    const std::string path = readOnly + "\\materials.tnt";
    const auto before = Content(path);
    RealLibrary program(files);
    program.Open(path);
    const int colors = program.library.Colors().UpperBound();
    EXPECT_GT(colors, 10);
    program.AddColors(1);
    program.Save();
    EXPECT_EQ(program.prompts.messages, std::vector<Message>{SaveFailed(path)});
    EXPECT_EQ(program.library.Colors().UpperBound(), colors + 1);
    EXPECT_EQ(Content(path), before);
    EXPECT_FALSE(files.Exists(path + ".bak"));
}

} // namespace
