// Rules: Empty list
// The whole program on fakes: what the list says while it has no rows, and what its links do.
#include "mainwindow/EmptyListHint.h"

#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"
#include "tests/fakes/LibraryOnFakes.h"
#include "tests/fakes/SourceFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using Texts = std::vector<std::string>;

class EmptyListHintTest : public testing::Test {
protected:
    EmptyListHintTest() {
        program.files.contents["C:\\prog\\samples\\web.tnt"] = "\"D#Web=0D:1\"\r\n\"G#A=0DG1\"\r\n";
        program.files.contents["C:\\prog\\samples\\materials.TNT"] = "\"D#Materials=0D:1\"\r\n";
        program.files.contents["C:\\prog\\samples\\coats.gpl"] = "";
        program.application.Start();
    }

    void Run(int command) { program.Main().frame.RunCommand(command); }
    // A library with one group that has no colors.
    void OpenEmptyGroup() {
        program.files.contents["C:\\a.tnt"] = "\"D#A=0D:1\"\r\n\"G#Gruppe=0DG1\"\r\n";
        program.Main().frame.FilesDropped({"C:\\a.tnt"});
        program.Main().tree.NodeClicked("0DG1");
    }
    std::vector<HintLine> Lines() { return program.Main().hints.HintLines(); }
    std::string Title() { return Lines().empty() ? "" : Lines().front().text; }
    // Of the links; 0: a sample.
    std::vector<int> Commands() {
        std::vector<int> commands;
        for (const HintLine& line : Lines())
            if (line.IsLink())
                commands.push_back(line.command);
        return commands;
    }
    Texts Samples() {
        Texts files;
        for (const HintLine& line : Lines())
            if (!line.file.empty())
                files.push_back(line.text + "|" + line.file);
        return files;
    }

    FakeProgram program;
};

TEST_F(EmptyListHintTest, WithoutALibraryOneIsOpenedMadeOrImportedAndSamplesAreOffered) {
    EXPECT_EQ(Title(), "<280>");
    EXPECT_EQ(Commands(),
              (std::vector<int>{IDM_mnuFileOpen, IDM_mnuFileNew, IDM_mnuFileImport, 0, 0}));
    EXPECT_EQ(Samples(), (Texts{"Beispiel öffnen: materials|C:\\prog\\samples\\materials.TNT",
                                "Beispiel öffnen: web|C:\\prog\\samples\\web.tnt"}));
    EXPECT_EQ(Lines().back().text, "<285>");
    EXPECT_FALSE(Lines().back().IsLink());
}

TEST_F(EmptyListHintTest, LibrariesThatWereNotSavedAreOfferedFirst) {
    const std::string kept = std::string(FakeProgram::kRecoveryFolder) + "\\a1";
    program.files.contents[kept + ".tnt"] = "\"D#Mine=0D:1\"\r\n\"G#g=0DG1\"\r\n";
    program.files.contents[kept + ".txt"] = "Mine\r\n\r\n2024-03-01 10:00:00\r\n7\r\n";
    EXPECT_EQ(Title(), "<280>");
    EXPECT_EQ(Commands().front(), IDM_mnuFileRecover);
    EXPECT_EQ(Lines().at(1).text, "<247>");
    OpenEmptyGroup();
    EXPECT_NE(Commands().front(), IDM_mnuFileRecover);
}

TEST_F(EmptyListHintTest, LibraryThatWasClosedIsOfferedAsSoonAsItIsKept) {
    program.prompts.typed = {"mine", "group"};
    Run(IDM_mnuColorNewMainNode);
    Run(IDM_mnuColorNewGroup);
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuFileClose);
    program.view.hintChanges = 0;
    program.Main().frame.SecondPassed();
    program.background.Wait();
    EXPECT_EQ(program.view.hintChanges, 0);
    program.Main().frame.SecondPassed();
    EXPECT_EQ(std::exchange(program.view.hintChanges, 0), 1);
    EXPECT_EQ(Commands().front(), IDM_mnuFileRecover);
    program.Main().frame.SecondPassed();
    EXPECT_EQ(program.view.hintChanges, 0) << "nothing was written";
}

TEST_F(EmptyListHintTest, CopiesThatAreTooOldAreNotOfferedAtTheStart) {
    FakeProgram next;
    const std::string kept = std::string(FakeProgram::kRecoveryFolder) + "\\old-1";
    next.files.contents[kept + ".tnt"] = "\"D#Mine=0D:1\"\r\n\"G#g=0DG1\"\r\n";
    next.files.contents[kept + ".txt"] = "Mine\r\n\r\n2023-03-01 10:00:00\r\n7\r\n";
    int shown = 0; // command of the first link
    next.view.onHintChanged = [&] { shown = next.Main().hints.HintLines().at(1).command; };
    next.application.Start();
    EXPECT_EQ(shown, IDM_mnuFileOpen);
}

TEST_F(EmptyListHintTest, NoMoreThanThreeSamplesAreOfferedAndNoneIsNeeded) {
    for (const char* name : {"a", "b", "c", "d"})
        program.files.contents[std::string("C:\\prog\\samples\\") + name + ".tnt"] = "";
    EXPECT_EQ(Samples().size(), EmptyListHint::kMostSamples);
    EXPECT_EQ(Samples().front(), "Beispiel öffnen: a|C:\\prog\\samples\\a.tnt");
    std::erase_if(program.files.contents,
                  [](const auto& file) { return file.first.starts_with("C:\\prog\\samples"); });
    EXPECT_EQ(Commands(), (std::vector<int>{IDM_mnuFileOpen, IDM_mnuFileNew, IDM_mnuFileImport}));
}

TEST_F(EmptyListHintTest, SampleOpensWithoutAQuestionAndIsToldInTheStatusPanel) {
    program.Main().frame.SampleChosen("C:\\prog\\samples\\web.tnt");
    EXPECT_EQ(program.view.nodes.at("0D"), "Web");
    EXPECT_EQ(program.view.infoPanel, "Okay web.tnt");
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_EQ(program.registry.values.count(FakeProgram::Setting("DefaultColorFile")), 0U);
    EXPECT_EQ(Title(), "<289>") << "its first group has no colors";
}

TEST_F(EmptyListHintTest, SampleThatIsGoneIsToldAsEveryFileThatDoesNotOpen) {
    program.Main().frame.SampleChosen("C:\\prog\\samples\\gone.tnt");
    ASSERT_EQ(program.prompts.messages.size(), 1U);
    EXPECT_EQ(program.prompts.messages.front().prompt, "<6>C:\\prog\\samples\\gone.tnt");
    EXPECT_EQ(Title(), "<280>");
}

TEST_F(EmptyListHintTest, EmptyGroupSaysHowColorsComeIntoIt) {
    OpenEmptyGroup();
    EXPECT_EQ(Title(), "<289>");
    EXPECT_EQ(Commands(), (std::vector<int>{IDM_mnuColorNewColor, IDM_mnuSWXNewColorUpdate}));
    EXPECT_EQ(Lines().back().text, "<292>");
}

TEST_F(EmptyListHintTest, LibraryWithoutGroupsOffersOne) {
    program.Main().frame.SampleChosen("C:\\prog\\samples\\materials.TNT");
    program.Main().tree.NodeClicked("0D");
    EXPECT_EQ(Title(), "<286>");
    EXPECT_EQ(Commands(), (std::vector<int>{IDM_mnuColorNewGroup, IDM_mnuFileImportGroups}));
}

// The list asks whenever its rows have changed, and after each command: language and libraries may
// be others with the same number of rows, none.
TEST_F(EmptyListHintTest, ListIsToldAfterEachCommand) {
    const auto changes = [this] { return std::exchange(program.view.hintChanges, 0); };
    EXPECT_GT(changes(), 0) << "at the start";
    Run(IDM_mnuOptionsLngGerman);
    EXPECT_GT(changes(), 0);
    OpenEmptyGroup();
    EXPECT_GT(changes(), 0);
    program.Main().frame.SampleChosen("C:\\prog\\samples\\web.tnt");
    EXPECT_GT(changes(), 0);
}

TEST_F(EmptyListHintTest, NoSampleIsOpenedWhileAnOperationRuns) {
    OpenEmptyGroup();
    program.events.onEvents = [this] {
        program.Main().frame.SampleChosen("C:\\prog\\samples\\web.tnt");
    };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_GT(program.events.count, 0);
    EXPECT_EQ(program.view.nodes.count("1D"), 0U);
}

class BuiltInTexts : public InfoTexts {
public:
    std::string GetInfoText(std::int32_t) override { return {}; }
    std::string GetInfoTextOr(std::int32_t, const std::string& builtIn) override { return builtIn; }
};

// Without a language file the words are the German ones, and not others.
TEST(EmptyListHintTexts, BuiltInWordsAreThoseOfTheGermanFile) {
    std::ifstream file(SourceFolder() + "/resources/language/tntlng_de.ini", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    std::string german = FakeCodePage::Western().Decode(bytes);
    std::erase(german, '\r');
    BuiltInTexts builtIn;
    FakeFiles files;
    files.contents["C:\\samples\\%1.tnt"] = "";
    LibraryOnFakes onFakes;
    ColorLibrary& library = onFakes.library;
    const EmptyListHint hint({library, builtIn, files, "C:\\samples", [] { return true; }});
    const auto expectInFile = [&] {
        for (const HintLine& line : hint.HintLines())
            EXPECT_NE(german.find("=" + line.text + "\n"), std::string::npos) << line.text;
    };
    expectInFile();
    const std::string key = library.NewMainNode("A");
    library.Tree().Select(key);
    expectInFile();
    library.Tree().Select(library.NewGroupNode(key, "B"));
    expectInFile();
}

} // namespace
