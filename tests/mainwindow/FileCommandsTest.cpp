// Rules: File commands
#include "mainwindow/FileCommands.h"

#include "common/RuntimeError.h"

#include "tests/fakes/LibraryOnFakes.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;

constexpr const char* kA = "C:\\lib\\a.tnt";
constexpr const char* kB = "C:\\lib\\b.tnt";
constexpr const char* kContent = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";

class FileCommandsTest : public testing::Test, protected LibraryOnFakes {
protected:
    FileCommandsTest() {
        files.contents[kA] = kContent;
        files.contents[kB] = kContent;
        editor.ShowInitialColor();
    }

    void Open(const std::string& path, Answer autoload = Answer::No) {
        prompts.chosenFiles.emplace_back(path);
        prompts.answers.push_back(autoload);
        commands.mnuFileOpen_Click();
    }
};

TEST_F(FileCommandsTest, OpenAsksWithTitleFilterAndFlags) {
    Open(kA);
    ASSERT_EQ(prompts.fileRequests.size(), 1U);
    EXPECT_EQ(prompts.fileRequests[0].title, "<20>");
    EXPECT_EQ(prompts.fileRequests[0].filter, "<21>|*.tnt|<22>|*.*");
    EXPECT_EQ(prompts.fileRequests[0].flags, 0x1800U);
}

TEST_F(FileCommandsTest, StatusBarShowsTheOpenedFileWhileTheQuestionIsAsked) {
    std::vector<std::string> before;
    prompts.onMessage = [&] { before = view.infoPanels; };
    Open(kA);
    EXPECT_EQ(before, std::vector<std::string>{"Okay a.tnt"});
}

TEST_F(FileCommandsTest, SeveralDroppedLibrariesOpenInTheirOrderWithoutAQuestion) {
    commands.OpenDropped({kB, kA});
    EXPECT_EQ(view.infoPanels, (std::vector<std::string>{"Okay b.tnt", "Okay a.tnt"}));
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_TRUE(prompts.fileRequests.empty());
}

TEST_F(FileCommandsTest, LibraryThatIsDroppedAloneOpensWithTheQuestionAboutEveryStart) {
    prompts.answers = {Answer::Yes};
    commands.OpenDropped({kA});
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<24>\r\nC:\\lib\\a.tnt", 36, "<21>"}}));
    EXPECT_EQ(settings.defaultColorFile, kA);
}

TEST_F(FileCommandsTest, LibraryThatIsDroppedWithAFileOfAnotherKindOpensWithoutAQuestion) {
    commands.OpenDropped({"C:\\lib\\a.txt", kA});
    EXPECT_EQ(view.infoPanels, std::vector<std::string>{"Okay a.tnt"});
    EXPECT_TRUE(prompts.messages.empty());
}

TEST_F(FileCommandsTest, DroppedLibraryWithAnErrorLetsTheOthersOpen) {
    std::string color = "\"E#a=0DG1:a\xF7"
                        "99999";
    for (int value = 2; value <= 9; ++value)
        color += "\xF7" + std::to_string(value);
    files.contents[kB] += color + "\"\r\n";
    EXPECT_THROW(commands.OpenDropped({kB, kA}), RuntimeError);
    EXPECT_EQ(view.infoPanels, std::vector<std::string>{"Okay a.tnt"});
}

TEST_F(FileCommandsTest, PathThatTheSettingsCannotHoldIsNotLoadedAtEveryStartAndTheUserIsTold) {
    const std::string path = "C:\\lib\\\xE8\x89\xB2.tnt";
    files.contents[path] = files.contents.at(kA);
    prompts.chosenFiles = {path};
    prompts.answers = {Answer::Yes};
    commands.mnuFileOpen_Click();
    EXPECT_EQ(settings.defaultColorFile, "");
    ASSERT_EQ(prompts.messages.size(), 2U);
    EXPECT_EQ(prompts.messages[1], (FakePrompts::Message{"<105>\r\n" + path, 48, "<98>"}));
}

TEST_F(FileCommandsTest, DroppedFilesOfOtherKindsAreLeftAlone) {
    files.contents["C:\\lib\\a.txt"] = kContent;
    files.contents["C:\\lib\\tnt"] = kContent;
    files.contents["C:\\lib\\c.TNT"] = kContent;
    commands.OpenDropped({"C:\\lib\\a.txt", "C:\\lib\\tnt", "C:\\lib\\c.TNT", ""});
    EXPECT_EQ(view.infoPanels, std::vector<std::string>{"Okay c.TNT"});
}

TEST_F(FileCommandsTest, OpenShowsTheFilesNameAndAsksWhetherToLoadItAtEveryStart) {
    Open(kA, Answer::Yes);
    EXPECT_EQ(view.infoPanels, std::vector<std::string>{"Okay a.tnt"});
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<24>\r\nC:\\lib\\a.tnt", 36, "<21>"}}));
    EXPECT_EQ(settings.defaultColorFile, kA);
}

TEST_F(FileCommandsTest, NoLeavesTheDefaultFileAsItWas) {
    settings.defaultColorFile = "before";
    Open(kA, Answer::No);
    EXPECT_EQ(settings.defaultColorFile, "before");
}

TEST_F(FileCommandsTest, CancelledOpenDoesNothing) {
    prompts.chosenFiles.emplace_back();
    commands.mnuFileOpen_Click();
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_TRUE(library.Tree().MainNodes().empty());
}

TEST_F(FileCommandsTest, InvalidFileGivesTwoMessages) {
    files.contents[kA] = "rubbish";
    Open(kA);
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<5> C:\\lib\\a.tnt", 48, "<98>"},
                                                      {"<6>C:\\lib\\a.tnt", 16, "<98>"}}));
    EXPECT_TRUE(view.infoPanels.empty());
}

TEST_F(FileCommandsTest, SaveWithoutALibraryDoesNothing) {
    commands.mnuFileSave_Click();
    commands.mnuFileSaveAs_Click();
    EXPECT_TRUE(prompts.fileRequests.empty());
    EXPECT_TRUE(prompts.messages.empty());
}

TEST_F(FileCommandsTest, SaveWritesToTheLibrarysFileAndKeepsABackup) {
    Open(kA);
    library.Tree().SetText("0DG1", "renamed");
    commands.mnuFileSave_Click();
    EXPECT_NE(files.contents.at(kA).find("renamed"), std::string::npos);
    EXPECT_EQ(files.contents.at(std::string(kA) + ".bak"), kContent);
    EXPECT_EQ(view.infoPanels.back(), "Okay a.tnt");
}

TEST_F(FileCommandsTest, SaveRetargetsTheLibraryToTheDialogsFile) {
    Open(kA);
    Open(kB);
    library.Tree().Select("0D");
    commands.mnuFileSave_Click();
    EXPECT_EQ(library.Tree().At("0D").file, kB) << "the dialog's file, not the one just written";
    EXPECT_EQ(view.infoPanels.back(), "Okay b.tnt");
    EXPECT_EQ(files.contents.at(kB), kContent) << "written was the library's own file";
    EXPECT_TRUE(files.contents.contains(std::string(kA) + ".bak"));
}

TEST_F(FileCommandsTest, SaveOfANewLibraryIsSaveAsInTheProgramsFolder) {
    prompts.typed = {"Lib", "Grp", "Col"};
    commands.mnuFileNew_Click();
    prompts.chosenFiles.emplace_back("C:\\lib\\new.tnt");
    commands.mnuFileSave_Click();
    ASSERT_EQ(prompts.fileRequests.size(), 1U);
    EXPECT_EQ(prompts.fileRequests[0].fileName, "C:\\prog\\newtnt.tnt");
    EXPECT_EQ(prompts.fileRequests[0].flags, 0x8806U);
    EXPECT_EQ(library.Tree().At("0D").file, "C:\\lib\\new.tnt");
    EXPECT_EQ(library.Tree().At("0D").text, "Lib") << "saving does not rename a library";
    EXPECT_EQ(view.infoPanels.back(), "Okay new.tnt");
}

TEST_F(FileCommandsTest, SaveAsPresetsTheLibrarysFile) {
    Open(kA);
    Open(kB);
    library.Tree().Select("0DG1");
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(prompts.fileRequests.back().fileName, kA);
    EXPECT_EQ(prompts.fileRequests.back().title, "<20>");
    EXPECT_EQ(prompts.fileRequests.back().filter, "<21>|*.tnt|<22>|*.*");
    EXPECT_EQ(prompts.fileRequests.back().flags, 0x8806U);
}

TEST_F(FileCommandsTest, CancelledSaveAsGivesTheDialogItsFileNameBack) {
    Open(kA);
    Open(kB);
    library.Tree().Select("0D");
    commands.mnuFileSaveAs_Click(); // cancelled
    EXPECT_EQ(commands.DialogFileName(), kB);
}

TEST_F(FileCommandsTest, FailedSaveNamesTheDialogsFileAndKeepsTheTag) {
    Open(kA);
    files.locked[kA] = true;
    prompts.messages.clear();
    commands.mnuFileSave_Click();
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<4>C:\\lib\\a.tnt", 16, "<98>"}}));
    EXPECT_EQ(library.Tree().At("0D").file, kA);
    EXPECT_EQ(files.contents.at(kA), kContent);
}

TEST_F(FileCommandsTest, FailedSaveAsTellsTheChosenFileAndKeepsTheOldTarget) {
    Open(kA);
    files.locked[kB] = true;
    prompts.messages.clear();
    view.infoPanels.clear();
    prompts.chosenFiles.emplace_back(kB);
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<4>C:\\lib\\b.tnt", 16, "<98>"}}));
    EXPECT_EQ(library.Tree().At("0D").file, kA);
    EXPECT_TRUE(view.infoPanels.empty());
    EXPECT_EQ(files.contents.at(kB), kContent);
}

TEST_F(FileCommandsTest, FailedSaveAsOfANewLibraryLeavesItUnsaved) {
    prompts.typed = {"Lib", "Grp", "Col"};
    commands.mnuFileNew_Click();
    files.FailAtStep(1, FakeFiles::FailureKind::Reported);
    prompts.chosenFiles.emplace_back("C:\\lib\\new.tnt");
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<4>C:\\lib\\new.tnt", 16, "<98>"}}));
    EXPECT_EQ(library.Tree().At("0D").file, std::nullopt);
    EXPECT_FALSE(files.contents.contains("C:\\lib\\new.tnt"));
    commands.mnuFileSave_Click();
    EXPECT_EQ(prompts.fileRequests.back().fileName, "C:\\prog\\newtnt.tnt")
        << "Save is still Save As";
}

TEST_F(FileCommandsTest, DialogStartsWithTheFileThatWasChosenLast) {
    Open(kA);
    EXPECT_EQ(prompts.fileRequests.back().fileName, "");
    Open(kB);
    EXPECT_EQ(prompts.fileRequests.back().fileName, kA);
    prompts.chosenFiles.emplace_back("D:\\other\\c.tnt");
    commands.mnuFileSaveAs_Click();
    prompts.chosenFiles.emplace_back(); // cancelled
    commands.mnuFileOpen_Click();
    EXPECT_EQ(prompts.fileRequests.back().fileName, "D:\\other\\c.tnt");
    commands.mnuFileOpen_Click(); // also after one that was cancelled
    EXPECT_EQ(prompts.fileRequests.back().fileName, "D:\\other\\c.tnt");
}

TEST_F(FileCommandsTest, FailedOpenLeavesTheDialogsFileSoThatSaveStaysRight) {
    Open(kA);
    files.contents[kB] = "rubbish";
    Open(kB);
    Open("C:\\lib\\gone.tnt");
    EXPECT_EQ(commands.DialogFileName(), kA);
    commands.mnuFileSave_Click();
    EXPECT_EQ(library.Tree().At("0D").file, kA);
    EXPECT_EQ(view.infoPanels.back(), "Okay a.tnt");
    EXPECT_EQ(files.contents.at(kB), "rubbish");
}

TEST_F(FileCommandsTest, OpenThatEndsWithAnErrorLeavesTheDialogsFile) {
    Open(kA);
    std::string color = "\"E#a=0DG1:a\xF7"
                        "99999";
    for (int value = 2; value <= 9; ++value)
        color += "\xF7" + std::to_string(value);
    files.contents[kB] += color + "\"\r\n";
    EXPECT_THROW(Open(kB), RuntimeError);
    EXPECT_EQ(commands.DialogFileName(), kA);
}

TEST_F(FileCommandsTest, DroppedFilesLeaveTheDialogsFile) {
    Open(kA);
    commands.OpenDropped({"C:\\lib\\gone.tnt", kB});
    EXPECT_EQ(commands.DialogFileName(), kA);
    library.Tree().Select("0D");
    commands.mnuFileSave_Click();
    EXPECT_EQ(library.Tree().At("0D").file, kA);
}

TEST_F(FileCommandsTest, DroppedLibraryKeepsItsFileWhileTheDialogHasHadNone) {
    commands.OpenDropped({kA});
    for (int save = 1; save <= 2; ++save) {
        commands.mnuFileSave_Click();
        EXPECT_EQ(library.Tree().At("0D").file, kA);
        EXPECT_EQ(view.infoPanels.back(), "Okay a.tnt");
    }
}

TEST_F(FileCommandsTest, FailedSaveAsLeavesTheDialogsFile) {
    Open(kA);
    files.locked[kB] = true;
    prompts.chosenFiles.emplace_back(kB);
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(commands.DialogFileName(), kA);
}

TEST_F(FileCommandsTest, FileThatCannotBeReadGivesTheBoxOfEveryFailedOpen) {
    files.unreadable[kA] = true;
    Open(kA);
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<6>C:\\lib\\a.tnt", 16, "<98>"}}));
    prompts.messages.clear();
    settings.defaultColorFile = kA;
    commands.Autoload();
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<6>C:\\lib\\a.tnt", 16, "<98>"}}));
    EXPECT_TRUE(library.Tree().MainNodes().empty());
}

TEST_F(FileCommandsTest, SaveAsOntoAnExistingFileKeepsItsContentUnderBak) {
    const std::string other = "\"D#Other=0D:0\"\r\n";
    Open(kA);
    files.contents[kB] = other;
    prompts.chosenFiles.emplace_back(kB);
    commands.mnuFileSaveAs_Click();
    EXPECT_EQ(files.contents.at(kB), kContent);
    EXPECT_EQ(files.contents.at(std::string(kB) + ".bak"), other);
    EXPECT_EQ(files.contents.at(kA), kContent);
    EXPECT_FALSE(files.contents.contains(std::string(kA) + ".bak"));
    EXPECT_EQ(library.Tree().At("0D").file, kB);
}

TEST_F(FileCommandsTest, FailedSaveNamesTheDialogsFileAlsoWhenTheLibraryHasAnother) {
    Open(kA);
    Open(kB);
    library.Tree().Select("0D");
    files.locked[kA] = true;
    prompts.messages.clear();
    commands.mnuFileSave_Click();
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<4>C:\\lib\\b.tnt", 16, "<98>"}}));
    EXPECT_EQ(library.Tree().At("0D").file, kA);
}

TEST_F(FileCommandsTest, RefusedLossOfCharactersIsAFailedSaveThatWritesNothing) {
    Open(kA);
    library.Tree().SetText("0DG1", "\u8272");
    prompts.messages.clear();
    prompts.answers = {Answer::Cancel};
    commands.mnuFileSave_Click();
    ASSERT_EQ(prompts.messages.size(), 2U);
    EXPECT_EQ(prompts.messages[0].prompt.find("<104>"), 0U);
    EXPECT_EQ(prompts.messages[1].prompt, "<4>C:\\lib\\a.tnt");
    EXPECT_EQ(files.contents.at(kA), kContent);
    EXPECT_FALSE(files.contents.contains(std::string(kA) + ".bak"));
}

TEST_F(FileCommandsTest, LibraryWithoutGroupsCountsAsAFailedSave) {
    library.NewMainNode("Lib");
    library.Tree().SetFile("0D", "C:\\lib\\c.tnt");
    commands.mnuFileSave_Click();
    EXPECT_EQ(prompts.messages,
              (std::vector<Message>{{"<103>", 64, "<30>"}, {"<4>C:\\lib\\c.tnt", 16, "<98>"}}));
}

TEST_F(FileCommandsTest, CloseTakesTheSelectedNodeWithoutAQuestionAndLeavesTheSetting) {
    Open(kA);
    Open(kB);
    prompts.messages.clear();
    library.Tree().Select("1DG1");
    commands.mnuFileClose_Click();
    EXPECT_TRUE(library.GetGroupInMainnode("1D").empty()) << "a group goes alone";
    library.Tree().Select("0D");
    commands.mnuFileClose_Click();
    EXPECT_EQ(library.Tree().MainNodes(), std::vector<std::string>{"1D"});
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_TRUE(settings.confirmDel);
}

TEST_F(FileCommandsTest, CancelAutoloadAsksAlsoWithoutADefaultFile) {
    prompts.answers = {Answer::No};
    commands.mnuFileCancelAutoload_Click();
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<25>", 36, "<21>"}}));
}

TEST_F(FileCommandsTest, CancelAutoloadClearsTheDefaultFileOnYesOnly) {
    settings.defaultColorFile = kA;
    prompts.answers = {Answer::No, Answer::Yes};
    commands.mnuFileCancelAutoload_Click();
    EXPECT_EQ(settings.defaultColorFile, kA);
    EXPECT_EQ(prompts.messages.back().prompt, "<25>C:\\lib\\a.tnt");
    commands.mnuFileCancelAutoload_Click();
    EXPECT_EQ(settings.defaultColorFile, "");
}

TEST_F(FileCommandsTest, AutoloadIsSilentAndStartsTheDialogWithItsFile) {
    settings.defaultColorFile = kA;
    commands.Autoload();
    EXPECT_TRUE(prompts.messages.empty());
    commands.mnuFileSave_Click();
    EXPECT_EQ(library.Tree().At("0D").file, kA);
}

TEST_F(FileCommandsTest, AutoloadOfAMissingFileLeavesAnEmptyTreeAndNoMessage) {
    settings.defaultColorFile = "C:\\gone.tnt";
    commands.Autoload();
    EXPECT_TRUE(library.Tree().MainNodes().empty());
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_EQ(commands.DialogFileName(), "");
}

TEST_F(FileCommandsTest, AutoloadOfAnInvalidFileShowsItsMessageAndKeepsWhatWasRead) {
    files.contents[kA] = std::string(kContent) + "\"E#broken\"\r\n";
    settings.defaultColorFile = kA;
    commands.Autoload();
    EXPECT_EQ(prompts.messages, (std::vector<Message>{{"<5> C:\\lib\\a.tnt", 48, "<98>"}}));
    EXPECT_EQ(library.GetGroupInMainnode("0D").size(), 1U);
    EXPECT_EQ(commands.DialogFileName(), kA);
}

} // namespace
