// Rules: Foreign palettes
// Import and export in the file menu, files that are dropped, and what the user is told.

#include "common/InfoTextNumber.h"
#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"
#include "tests/fakes/LibraryText.h"
#include "tests/fakes/LibraryOutline.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;
using Texts = std::vector<std::string>;

constexpr const char* kGpl = "C:\\pal\\web.gpl";
constexpr const char* kCsv = "C:\\pal\\table.csv";
constexpr const char* kTxt = "C:\\pal\\notes.txt";

class PaletteCommandsTest : public testing::Test {
protected:
    PaletteCommandsTest() {
        program.application.Start();
        program.files.contents[kGpl] = "GIMP Palette\nName: Web\n#\n255 0 0\tRed\n0 0 255\n";
        program.files.contents[kCsv] =
            "group,name,red,green,blue,ambient,diffuse,specular,shininess,transparency,emission\r\n"
            "warm,sun,1,2,3,4,5,6,7,8,9\r\ncold,ice,10,20,30,40,50,60,70,80,90\r\n";
        program.prompts.messages.clear();
    }

    void Run(int command) { program.Main().frame.RunCommand(command); }
    void Import(const Texts& paths, int command = IDM_mnuFileImport) {
        program.prompts.chosenFileSets = {paths};
        Run(command);
    }
    void Export(const std::string& path) {
        program.prompts.chosenFiles = {path};
        Run(IDM_mnuFileExport);
        program.prompts.chosenFiles.clear();
    }
    void NewLibrary(const std::string& name) {
        program.prompts.typed = {name, "mine", "my color"};
        Run(IDM_mnuColorNewMainNode);
    }
    [[nodiscard]] std::string Written(const std::string& path) {
        return program.files.contents.contains(path) ? program.files.contents.at(path) : "nothing";
    }
    [[nodiscard]] Texts Row(int row) {
        Texts texts;
        for (int column = 1; column <= 10; ++column)
            texts.push_back(program.Main().rows.CellText(row, column));
        return texts;
    }
    [[nodiscard]] Texts Nodes() {
        Texts nodes;
        for (const auto& [key, name] : program.view.nodes)
            nodes.push_back(key + " " + name);
        return nodes;
    }

    FakeProgram program;
};

TEST_F(PaletteCommandsTest, PaletteBecomesALibraryOfItsNameWithItsGroupSelectedAndItsColorsListed) {
    Import({kGpl});
    EXPECT_EQ(Nodes(), (Texts{"0D Web", "0DG1 <212>"}));
    EXPECT_EQ(program.view.selectedNode, "0DG1");
    EXPECT_EQ(Row(0), (Texts{"Red", "255", "0", "0", "100", "100", "100", "30", "0", "0"}));
    EXPECT_EQ(Row(1)[0], "#0000FF") << "a color without a name";
    EXPECT_EQ(program.view.infoPanels.back(), "Okay web.gpl  -  <213>: 2");
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_FALSE(program.view.isWaiting);
}

TEST_F(PaletteCommandsTest, DialogTakesSeveralFilesOfTheKnownEndings) {
    Import({});
    ASSERT_EQ(program.prompts.fileRequests.size(), 1U);
    EXPECT_EQ(program.prompts.fileRequests[0].title, "<210>");
    EXPECT_EQ(program.prompts.fileRequests[0].filter,
              "<211>|*.gpl;*.ase;*.aco;*.csv;*.txt|<22>|*.*");
    EXPECT_TRUE(Nodes().empty()) << "cancelled";
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST_F(PaletteCommandsTest, SeveralFilesBecomeALibraryEachInOneStep) {
    Import({kGpl, kCsv});
    EXPECT_EQ(Nodes(), (Texts{"0D Web", "0DG1 <212>", "1D table", "1DG1 warm", "1DG2 cold"}));
    EXPECT_EQ(program.view.infoPanels.back(), "Okay web.gpl, table.csv  -  <213>: 4");
    Run(IDM_mnuEditUndo);
    EXPECT_TRUE(Nodes().empty());
    Run(IDM_mnuEditRedo);
    EXPECT_EQ(Nodes().size(), 5U);
    EXPECT_EQ(Row(0)[0], "sun");
}

TEST_F(PaletteCommandsTest, ValuesThatThePaletteDoesNotHaveComeFromTheEditor) {
    program.Main().editor.ValueTextChanged(3, "11");
    program.Main().editor.ValueTextChanged(7, "44");
    Import({kGpl});
    EXPECT_EQ(Row(0), (Texts{"Red", "255", "0", "0", "11", "100", "100", "30", "44", "0"}));
}

TEST_F(PaletteCommandsTest, ValueOfTheEditorThatIsNoNumberStopsAnImportThatNeedsItBeforeItBegins) {
    EXPECT_THROW(program.Main().editor.ValueTextChanged(3, "x"), RuntimeError);
    EXPECT_THROW(Import({kCsv, kGpl}), RuntimeError);
    EXPECT_TRUE(Nodes().empty());
    Import({kCsv});
    EXPECT_EQ(Nodes().size(), 3U) << "a table with all values needs none";
}

TEST_F(PaletteCommandsTest, GroupsGoIntoTheSelectedLibraryBehindItsOwn) {
    NewLibrary("Mine");
    Import({kCsv, kGpl}, IDM_mnuFileImportGroups);
    EXPECT_EQ(Nodes(), (Texts{"0D Mine", "0DG1 mine", "0DG2 warm", "0DG3 cold", "0DG4 Web"}));
    EXPECT_EQ(program.view.selectedNode, "0DG4") << "of the last file";
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(Nodes(), (Texts{"0D Mine", "0DG1 mine"}));
}

TEST_F(PaletteCommandsTest, GroupsBecomeALibraryWhileNoneIsOpen) {
    Import({kGpl}, IDM_mnuFileImportGroups);
    EXPECT_EQ(Nodes(), (Texts{"0D Web", "0DG1 <212>"}));
}

TEST_F(PaletteCommandsTest, GroupsWhoseNumbersAreTakenAreAllRefused) {
    NewLibrary("Mine");
    program.prompts.typed = {"other", ""};
    Run(IDM_mnuColorNewGroup);
    program.Main().tree.NodeClicked("0DG1");
    Run(IDM_mnuColorDelGroup); // the next number is that of the group that is left
    ASSERT_EQ(Nodes(), (Texts{"0D Mine", "0DG2 other"}));
    EXPECT_THROW(Import({kCsv}, IDM_mnuFileImportGroups), RuntimeError);
    EXPECT_EQ(Nodes(), (Texts{"0D Mine", "0DG2 other"}));
}

TEST_F(PaletteCommandsTest, SecondFileWithoutRoomForItsGroupsKeepsTheFirstOneOutToo) {
    NewLibrary("Mine");
    program.prompts.typed = {"two", ""};
    Run(IDM_mnuColorNewGroup);
    program.prompts.typed = {"three", ""};
    Run(IDM_mnuColorNewGroup);
    for (const char* group : {"0DG1", "0DG2"}) {
        program.Main().tree.NodeClicked(group);
        Run(IDM_mnuColorDelGroup);
    }
    ASSERT_EQ(Nodes(), (Texts{"0D Mine", "0DG3 three"}));
    EXPECT_THROW(Import({kGpl, kCsv}, IDM_mnuFileImportGroups), RuntimeError);
    EXPECT_EQ(Nodes(), (Texts{"0D Mine", "0DG3 three"})) << "the first one would have had room";
    EXPECT_FALSE(program.view.isWaiting);
}

TEST_F(PaletteCommandsTest, WhatCouldNotBeReadIsToldInOneMessageWithCountAndPlace) {
    program.files.contents["C:\\a.gpl"] = "GIMP Palette\n1 2 3 a\nrubbish\n1 2 999 b\nmore\n";
    program.files.contents["C:\\b.png"] = std::string("\x89PNG\0\0", 6);
    program.files.contents["C:\\c.csv"] = "name,red,green,blue\r\n";
    Import({"C:\\a.gpl", "C:\\b.png", "C:\\c.csv", "C:\\missing.ase"});
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<214>\r\na.gpl: <219>: 2 (<218> 3), <220>: 1 (<218> 4)"
                                     "\r\nb.png: <216>\r\nc.csv: <217>\r\nmissing.ase: <215>",
                                     48, "<98>"}}));
    EXPECT_EQ(Nodes(), (Texts{"0D a", "0DG1 <212>"})) << "what could be read is there";
    EXPECT_EQ(program.view.infoPanels.back(), "Okay a.gpl  -  <213>: 1");
}

TEST_F(PaletteCommandsTest, FilesWithoutAPaletteChangeNothingAndAreNoStep) {
    Import({"C:\\missing.ase"});
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<248>\r\nmissing.ase: <215>", 48, "<98>"}}));
    EXPECT_TRUE(Nodes().empty());
    EXPECT_EQ(program.view.infoPanels.back(), "");
    EXPECT_FALSE(program.view.menuEnabled.at(IDM_mnuEditUndo));
}

TEST_F(PaletteCommandsTest, DroppedPalettesAreImportedInOneStepAndOtherFilesLeftAlone) {
    program.files.contents["C:\\lib.tnt"] = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";
    program.files.contents[kTxt] = "nothing that is a color\r\n";
    program.files.contents["C:\\picture.png"] = "x";
    program.Main().frame.FilesDropped({kGpl, "C:\\lib.tnt", kTxt, "C:\\picture.png", kCsv});
    EXPECT_EQ(Nodes(), (Texts{"0D Lib", "0DG1 g", "1D Web", "1DG1 <212>", "2D table", "2DG1 warm",
                              "2DG2 cold"}));
    EXPECT_TRUE(program.prompts.messages.empty());
    Run(IDM_mnuEditUndo);
    EXPECT_EQ(Nodes(), (Texts{"0D Lib", "0DG1 g"})) << "a library that was opened is no step";
}

TEST_F(PaletteCommandsTest, DroppedTextWithColorsIsATable) {
    program.files.contents[kTxt] = "Sonne;#FFCC4D\r\n";
    program.Main().frame.FilesDropped({kTxt});
    EXPECT_EQ(Nodes(), (Texts{"0D notes", "0DG1 <212>"}));
}

TEST_F(PaletteCommandsTest, DroppedPaletteIsToldWhenItCannotBeRead) {
    program.Main().frame.FilesDropped({"C:\\gone.gpl"});
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<248>\r\ngone.gpl: <215>", 48, "<98>"}}));
}

TEST_F(PaletteCommandsTest, ErrorOfADroppedLibraryLetsThePalettesIn) {
    program.files.contents["C:\\bad.tnt"] =
        "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n" + ColorLine("0DG1", "a", "99999");
    EXPECT_THROW(program.Main().frame.FilesDropped({"C:\\bad.tnt", kCsv}), RuntimeError);
    EXPECT_EQ(Nodes(), (Texts{"0D Lib", "0DG1 g", "1D table", "1DG1 warm", "1DG2 cold"}));
}

TEST_F(PaletteCommandsTest, ExportAsksForTheFileWithTheNameOfWhatIsSelected) {
    NewLibrary("RAL 1.5/matt");
    Run(IDM_mnuFileExport);
    ASSERT_EQ(program.prompts.fileRequests.size(), 1U);
    EXPECT_EQ(program.prompts.fileRequests[0].fileName, "mine") << "its group is selected";
    EXPECT_EQ(program.prompts.fileRequests[0].title, "<230>");
    EXPECT_EQ(program.prompts.fileRequests[0].filter,
              "<231>|*.gpl|<232>|*.ase|<233>|*.aco|<234>|*.csv");
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuFileExport);
    EXPECT_EQ(program.prompts.fileRequests[1].fileName, "RAL 1-5-matt");
    EXPECT_TRUE(program.prompts.messages.empty()) << "cancelled";
}

TEST_F(PaletteCommandsTest, ExportWithoutASelectionDoesNothing) {
    Run(IDM_mnuFileExport);
    EXPECT_TRUE(program.prompts.fileRequests.empty());
}

TEST_F(PaletteCommandsTest, LibraryIsExportedUnderItsNameAsATableWithAllValuesWithoutAQuestion) {
    Import({kCsv});
    program.Main().tree.NodeClicked("0D");
    Export("C:\\out\\table.csv");
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_EQ(Written("C:\\out\\table.csv"), "\xEF\xBB\xBF" + Written(kCsv));
    EXPECT_EQ(program.view.infoPanels.back(), "Okay table.csv");
}

TEST_F(PaletteCommandsTest, NameThatNeitherTheFormatNorTheFilesNameHoldsIsTold) {
    Import({kCsv});
    program.Main().tree.NodeClicked("0D");
    Export("C:\\out\\new.csv");
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<236>\r\n<241>: 1\r\n<243>", 49, "<98>"}}));
}

TEST_F(PaletteCommandsTest, WhatTheFormatDoesNotHoldIsToldBeforeAndCancelledWritesNothing) {
    Import({kCsv});
    program.Main().tree.NodeClicked("0D");
    program.prompts.answers = {Answer::Cancel};
    Export("C:\\out\\new.gpl");
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<236>\r\n<238>: 2\r\n<239>: 2\r\n<243>", 49, "<98>"}}));
    EXPECT_EQ(Written("C:\\out\\new.gpl"), "nothing");
    Export("C:\\out\\new.gpl");
    EXPECT_EQ(Written("C:\\out\\new.gpl"),
              "GIMP Palette\nName: table\nColumns: 0\n#\n  1   2   3\tsun\n 10  20  30\tice\n");
}

TEST_F(PaletteCommandsTest, GroupIsExportedAlone) {
    Import({kCsv});
    program.Main().tree.NodeClicked("0DG2");
    Export("C:\\out\\cold.GPL");
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<236>\r\n<238>: 1\r\n<243>", 49, "<98>"}}));
    EXPECT_EQ(Written("C:\\out\\cold.GPL"),
              "GIMP Palette\nName: cold\nColumns: 0\n#\n 10  20  30\tice\n");
}

TEST_F(PaletteCommandsTest, ExportReplacesAFileAsSafelyAsASaveWithABackup) {
    Import({kCsv});
    program.files.contents["C:\\out\\new.ase"] = "old";
    Export("C:\\out\\new.ase");
    EXPECT_EQ(Written("C:\\out\\new.ase").substr(0, 4), "ASEF");
    EXPECT_EQ(Written("C:\\out\\new.ase.bak"), "old");
    Run(IDM_mnuFileExport);
    EXPECT_EQ(program.prompts.fileRequests.back().fileName, "C:\\out\\warm") << "the same folder";
}

TEST_F(PaletteCommandsTest, ExportThatFailsAtAnyStepIsToldAndLeavesTheOldFile) {
    constexpr const char* kOut = "C:\\out\\new.aco";
    Import({kCsv});
    int step = 0;
    bool isWritten = false;
    while (!isWritten && step < 20) {
        ++step;
        program.files.contents[kOut] = "old";
        program.files.contents.erase(std::string(kOut) + ".bak");
        program.prompts.messages.clear();
        program.files.FailAtStep(step, FakeFiles::FailureKind::FromHereOn);
        Export(kOut);
        program.files.FailAtStep(0, FakeFiles::FailureKind::Reported);
        isWritten = program.prompts.messages.size() == 1; // the question alone
        if (isWritten)
            continue;
        EXPECT_EQ(program.prompts.messages.back(),
                  (Message{std::string("<244> ") + kOut, 16, "<98>"}));
        EXPECT_TRUE(Written(kOut) == "old" || Written(std::string(kOut) + ".bak") == "old") << step;
    }
    EXPECT_TRUE(isWritten);
    EXPECT_GT(step, 5);
    EXPECT_NE(Written(kOut), "old");
}

TEST_F(PaletteCommandsTest, EndingThatIsNoFormatIsToldAndNothingIsWritten) {
    Import({kCsv});
    Export("C:\\out\\new.xyz");
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"<235>\r\nC:\\out\\new.xyz", 48, "<98>"}}));
    EXPECT_EQ(Written("C:\\out\\new.xyz"), "nothing");
}

TEST_F(PaletteCommandsTest, EveryFormatGivesNamesAndColorsBackAndTheTableAllValues) {
    Import({kCsv});
    for (const std::string ending : {"gpl", "ase", "aco", "csv"}) {
        SCOPED_TRACE(ending);
        program.Main().tree.NodeClicked("0D");
        const std::string path = "C:\\out\\round." + ending;
        Export(path);
        for (std::size_t value = 3; value < 9; ++value)
            program.Main().editor.ValueTextChanged(value, "77");
        Import({path});
        const Texts material =
            ending == "csv" ? Texts{"4", "5", "6", "7", "8", "9"} : Texts(6, "77");
        Texts expected = {"sun", "1", "2", "3"};
        expected.insert(expected.end(), material.begin(), material.end());
        EXPECT_EQ(Row(0), expected);
        Run(IDM_mnuEditUndo);
    }
}

} // namespace
