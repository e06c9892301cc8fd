// Rules: SolidWorks session
#include "mainwindow/CommandTable.h"
#include "resources/controls.h"
#include "support/language/Languages.h"
#include "tests/fakes/FakeProgram.h"
#include "tests/fakes/MemberFault.h"
#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;

constexpr const char* kTitle = "Chromix - TNT";

class SolidWorksCommandsTest : public testing::Test {
protected:
    SolidWorksCommandsTest() { Start("default"); }

    void Start(const std::string& scenario) {
        program = std::make_unique<FakeProgram>(scenario);
        program->files.contents["C:\\a.tnt"] = "\"D#Lib=0D:1\"\r\n\"G#g=0DG1\"\r\n";
        program->registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
        program->application.Start();
    }
    void Run(int command) { program->Main().frame.RunCommand(command); }
    void Select(const AutomationObjectPtr& object, bool append = false) const {
        object->Invoke("Select", {append});
    }
    // The next call of the member goes wrong.
    void FailNext(const std::string& member, const std::string& fault) const {
        FailAt(member, fault, program->retryingService, program->solidWorks.Gate());
    }
    void TypeValue(std::size_t index, const std::string& text) {
        program->Main().editor.ValueTextChanged(index, text);
    }
    // The texts of a row: name and nine values.
    [[nodiscard]] std::vector<std::string> Row(int row) {
        std::vector<std::string> texts;
        for (int column = 1; column <= 10; ++column)
            texts.push_back(program->Main().rows.CellText(row, column));
        return texts;
    }
    [[nodiscard]] StandInClient Client() const { return StandInClient(program->solidWorks); }
    // A library that is marked as changed has no file: Save asks for one.
    [[nodiscard]] bool IsMarkedAsChanged() {
        program->prompts.fileRequests.clear();
        Run(IDM_mnuFileSave);
        return !program->prompts.fileRequests.empty();
    }
    [[nodiscard]] std::vector<double> ColorOf(const AutomationObjectPtr& object) const {
        return std::get<std::vector<double>>(object->Get("MaterialPropertyValues").data);
    }

    std::unique_ptr<FakeProgram> program;
};

std::vector<int> AllCommands() {
    std::vector<int> commands;
    for (const MenuRow& row : MenuRows())
        if (row.kind == CommandKind::Operation)
            commands.push_back(row.command);
    return commands;
}

const std::vector<int> kAllCommands = AllCommands();

TEST_F(SolidWorksCommandsTest, EveryCommandShowsTextZeroWithoutSolidWorksAndChangesNothing) {
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"first"};
    Run(IDM_mnuColorNewColor);
    TypeValue(0, "7"); // not written into the color yet
    program->service.SetRunning(false);
    const auto nodes = program->view.nodes;
    const std::vector<std::string> row = Row(0);
    ASSERT_NE(row.at(1), "7");
    for (const int command : kAllCommands) {
        program->prompts.messages.clear();
        Run(command);
        EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<0>", 64, kTitle}}))
            << command;
    }
    EXPECT_EQ(program->view.nodes, nodes);
    EXPECT_EQ(program->view.rowCount, 1);
    EXPECT_EQ(Row(0), row);
    EXPECT_EQ(program->view.colorName, "first");
}

TEST_F(SolidWorksCommandsTest, EveryCommandShowsTextOneWithoutADocument) {
    Start("no-document");
    for (const int command : kAllCommands) {
        program->prompts.messages.clear();
        Run(command);
        EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<1>", 64, kTitle}}))
            << command;
    }
}

TEST_F(SolidWorksCommandsTest, SelectionCommandsShowTextTwoWithADrawing) {
    Start("drawing");
    for (const int command :
         {IDM_mnuSWXGetColor, IDM_mnuSWXSetColor, IDM_mnuSWXClearColorFromSelection}) {
        program->prompts.messages.clear();
        Run(command);
        EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<2>", 64, kTitle}}));
    }
}

TEST_F(SolidWorksCommandsTest, ComponentAndAssemblyCommandsShowTextTenWithAPart) {
    for (const int command :
         {IDM_mnuSWXSetColorComponent, IDM_mnuSWXClearComponentColorFromSelection,
          IDM_mnuSWXClearColorAssembly}) {
        program->prompts.messages.clear();
        Run(command);
        EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<10>", 64, kTitle}}));
    }
}

TEST_F(SolidWorksCommandsTest, DrawingIsNeitherAPartNorAnAssembly) {
    Start("drawing");
    for (const auto& [command, text] :
         {std::pair{IDM_mnuSWXNewColorUpdate, "<2>"}, std::pair{IDM_mnuSWXClearColorPart, "<9>"},
          std::pair{IDM_mnuSWXSetColorComponent, "<10>"},
          std::pair{IDM_mnuSWXClearComponentColorFromSelection, "<10>"},
          std::pair{IDM_mnuSWXClearColorAssembly, "<10>"}}) {
        program->prompts.messages.clear();
        Run(command);
        EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{text, 64, kTitle}})) << command;
    }
}

TEST_F(SolidWorksCommandsTest, PartWithoutABodyIsToldByItsKey) {
    Start("part-without-body");
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"NoPartBody", 64, kTitle}}));
    EXPECT_EQ(program->view.infoPanel, "");
}

TEST_F(SolidWorksCommandsTest, SelectionThatCannotBeHandledIsToldAsItStands) {
    program->solidWorks.Part().Edges().front()->Select(false);
    for (const int command : {IDM_mnuSWXSetColor, IDM_mnuSWXClearColorFromSelection}) {
        program->prompts.messages.clear();
        Run(command);
        EXPECT_EQ(program->prompts.messages,
                  (std::vector<Message>{{"\r\nNoValidSelection: 1", 64, kTitle}}));
    }
    EXPECT_EQ(program->view.infoPanel, "");
}

TEST_F(SolidWorksCommandsTest, OldRevisionIsToldOncePerComponentInOneMessage) {
    Start("assembly,old-revision");
    Select(Client().Child(0));
    Select(Client().Child(1), true);
    for (const int command :
         {IDM_mnuSWXClearColorFromSelection, IDM_mnuSWXClearComponentColorFromSelection}) {
        program->prompts.messages.clear();
        Run(command);
        EXPECT_EQ(program->prompts.messages,
                  (std::vector<Message>{{"\r\n<8>\r\n<8>", 64, kTitle}}));
    }
}

TEST_F(SolidWorksCommandsTest, EverySuccessfulChangeShowsTheSameStatusInBothLanguages) {
    for (const int language : {IDM_mnuOptionsLngGerman, IDM_mnuOptionsLngEnglish}) {
        Run(language);
        program->solidWorks.Activate(DocumentType::Part);
        for (const int command :
             {IDM_mnuSWXSetColor, IDM_mnuSWXClearColorFromSelection, IDM_mnuSWXClearColorPart}) {
            program->view.infoPanel.clear();
            Run(command);
            EXPECT_EQ(program->view.infoPanel, "Okay setzen in SolidWorks") << command;
        }
        program->solidWorks.Activate(DocumentType::Assembly);
        for (const int command :
             {IDM_mnuSWXSetColorComponent, IDM_mnuSWXClearComponentColorFromSelection,
              IDM_mnuSWXClearColorAssembly}) {
            program->view.infoPanel.clear();
            Run(command);
            EXPECT_EQ(program->view.infoPanel, "Okay setzen in SolidWorks") << command;
        }
    }
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, ReadingAColorAndTheStandardColorsShowNoStatus) {
    for (const int command : {IDM_mnuSWXGetColor, IDM_mnuSWXNewColorUpdate,
                              IDM_mnuSWXGetStandardColor, IDM_mnuSWXSetStandardColor})
        Run(command);
    EXPECT_EQ(program->view.infoPanel, "");
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, PartCommandShowsTextNineWithAnAssembly) {
    Start("assembly");
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<9>", 64, kTitle}}));
}

TEST_F(SolidWorksCommandsTest, OldRevisionIsLookedAtBeforeTheDocument) {
    Start("old-revision,no-document");
    Run(IDM_mnuSWXClearColorAssembly);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<8>", 64, kTitle}}));
}

TEST_F(SolidWorksCommandsTest, SetColorSendsTheEditorsValuesToEverySelectedFace) {
    Select(Client().Face(0));
    Select(Client().Face(1), true);
    const std::vector<std::string> texts{"128", "64", "255", "50", "25", "75", "10", "5", "1"};
    for (std::size_t index = 0; index < texts.size(); ++index)
        TypeValue(index, texts[index]);
    Run(IDM_mnuSWXSetColor);
    const std::vector<double> expected{128 / 255.0, 64 / 255.0, 1.0,  0.5, 0.25,
                                       0.75,        0.1,        0.05, 0.01};
    EXPECT_EQ(ColorOf(Client().Face(0)), expected);
    EXPECT_EQ(ColorOf(Client().Face(1)), expected);
    EXPECT_EQ(program->view.infoPanel, "Okay setzen in SolidWorks");
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, SetColorWithNothingSelectedColorsTheDocument) {
    Run(IDM_mnuSWXSetColor);
    EXPECT_EQ(ColorOf(Client().Document()), (std::vector<double>{1, 1, 1, 1, 1, 1, 0.3, 0, 0}));
}

TEST_F(SolidWorksCommandsTest, GetColorLoadsTheEditorAndNotTheLibrary) {
    Client().Face(0)->Put("MaterialPropertyValues",
                          std::vector<double>{0.5, 0, 1, 0.1, 0.2, 0.3, 0.4, 0.005, 0.6});
    Select(Client().Face(0));
    Run(IDM_mnuSWXGetColor);
    EXPECT_EQ(program->view.colorName, "Neuer Farbwert");
    EXPECT_EQ(program->view.valueTexts,
              (std::array<std::string, 9>{"128", "0", "255", "10", "20", "30", "40", "0", "60"}))
        << "an exact half goes to the even neighbour";
    EXPECT_EQ(program->view.smallSwatchText, program->view.smallSwatch ^ 0xFFFFFU);
    EXPECT_EQ(program->view.rowCount, 0);
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, GetColorLeavesTheSelectedColorAsItIs) {
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"first"};
    Run(IDM_mnuColorNewColor);
    const std::vector<std::string> before = Row(0);
    Client().Face(0)->Put("MaterialPropertyValues",
                          std::vector<double>{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6});
    Select(Client().Face(0));
    Run(IDM_mnuSWXGetColor);
    EXPECT_EQ(program->view.valueTexts[0], "51");
    EXPECT_EQ(program->view.rowCount, 1);
    EXPECT_EQ(Row(0), before);
}

TEST_F(SolidWorksCommandsTest, GetColorOfAnEdgeShowsZerosAndAnEmptyNameWithoutAMessage) {
    program->solidWorks.Part().Edges().front()->Select(false);
    Run(IDM_mnuSWXGetColor);
    EXPECT_EQ(program->view.colorName, "");
    EXPECT_EQ(program->view.valueTexts[0], "0");
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, NewColorFromSolidWorksEndsWithTheReadValuesInTheLibrary) {
    Client().Face(0)->Put("MaterialPropertyValues",
                          std::vector<double>{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6});
    Select(Client().Face(0));
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"picked"};
    Run(IDM_mnuSWXNewColorUpdate);
    ASSERT_EQ(program->view.rowCount, 1);
    EXPECT_EQ(program->Main().rows.CellText(0, 1), "Neuer Farbwert");
    EXPECT_EQ(program->Main().rows.CellText(0, 2), "51");
    EXPECT_EQ(program->Main().rows.CellText(0, 10), "60");
}

TEST_F(SolidWorksCommandsTest, NewColorOfAnEdgeBecomesZerosWithoutANameAndWithoutAMessage) {
    program->solidWorks.Part().Edges().front()->Select(false);
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"picked"};
    Run(IDM_mnuSWXNewColorUpdate);
    ASSERT_EQ(program->view.rowCount, 1);
    EXPECT_EQ(Row(0), (std::vector<std::string>{"", "0", "0", "0", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(program->view.colorName, "");
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, NewColorThatSolidWorksRefusesKeepsItsNameAndTheEditorsValues) {
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"first"};
    Run(IDM_mnuColorNewColor);
    const std::vector<std::string> first = Row(0);
    const std::vector<std::string> texts{"1", "2", "3", "11", "22", "33", "44", "55", "66"};
    for (std::size_t index = 0; index < texts.size(); ++index)
        TypeValue(index, texts[index]);
    program->solidWorks.Activate(DocumentType::Drawing);
    program->prompts.typed = {"typed"};
    Run(IDM_mnuSWXNewColorUpdate);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<2>", 64, kTitle}}));
    ASSERT_EQ(program->view.rowCount, 2);
    EXPECT_EQ(Row(0), first);
    std::vector<std::string> second{"typed"};
    second.insert(second.end(), texts.begin(), texts.end());
    EXPECT_EQ(Row(1), second);
    EXPECT_EQ(program->view.colorName, "typed");
}

TEST_F(SolidWorksCommandsTest, CancelledNameAndARefusalLeaveTheColorThatWasActive) {
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"first"};
    Run(IDM_mnuColorNewColor);
    const std::vector<std::string> before = Row(0);
    TypeValue(0, "7");
    program->service.SetRunning(false);
    Run(IDM_mnuSWXNewColorUpdate); // cancelled
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<0>", 64, kTitle}}));
    ASSERT_EQ(program->view.rowCount, 1);
    EXPECT_EQ(Row(0), before);
}

TEST_F(SolidWorksCommandsTest, CancelledNameStillReadsAndWritesTheColorThatWasActive) {
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"first"};
    Run(IDM_mnuColorNewColor);
    Client().Face(0)->Put("MaterialPropertyValues",
                          std::vector<double>{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6});
    Select(Client().Face(0));
    Run(IDM_mnuSWXNewColorUpdate); // cancelled
    ASSERT_EQ(program->view.rowCount, 1);
    EXPECT_EQ(Row(0), (std::vector<std::string>{"Neuer Farbwert", "51", "102", "153", "10", "20",
                                                "30", "40", "50", "60"}));
}

TEST_F(SolidWorksCommandsTest, StandardColorsBecomeAGroupWithRisingEmission) {
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_EQ(program->view.nodes.at("0DG2"), "<70>");
    EXPECT_EQ(program->view.selectedNode, "0DG2");
    ASSERT_EQ(program->view.rowCount, 12);
    EXPECT_EQ(program->Main().rows.CellText(0, 10), "10");
    EXPECT_EQ(program->Main().rows.CellText(11, 10), "21");
}

TEST_F(SolidWorksCommandsTest, StandardColorsTakeNameAndColorFromTheTableAndTheRestFromTheEditor) {
    const std::vector<std::string> texts{"1", "2", "3", "11", "22", "33", "44", "55", "66"};
    for (std::size_t index = 0; index < texts.size(); ++index)
        TypeValue(index, texts[index]);
    program->solidWorks.Part().Colors().Replace({{"Sky", 0xFF8040}});
    Run(IDM_mnuSWXGetStandardColor);
    ASSERT_EQ(program->view.rowCount, 1);
    EXPECT_EQ(program->Main().rows.CellText(0, 1), "Sky");
    const std::vector<std::string> expected{"64", "128", "255", "11", "22", "33", "44", "55", "10"};
    for (int value = 0; value < 9; ++value)
        EXPECT_EQ(program->Main().rows.CellText(0, value + 2),
                  expected[static_cast<std::size_t>(value)])
            << value;
    EXPECT_EQ(program->view.colorName, "Sky");
    EXPECT_EQ(program->view.valueTexts[8], "10");
}

TEST_F(SolidWorksCommandsTest, EmissionOfStandardColorsEndsAtAHundred) {
    Start("standard-colors=95");
    Run(IDM_mnuSWXGetStandardColor);
    ASSERT_EQ(program->view.rowCount, 95);
    EXPECT_EQ(program->Main().rows.CellText(89, 10), "99");
    EXPECT_EQ(program->Main().rows.CellText(90, 10), "100");
    EXPECT_EQ(program->Main().rows.CellText(91, 10), "100");
    EXPECT_EQ(program->Main().rows.CellText(94, 10), "100");
}

TEST_F(SolidWorksCommandsTest, StandardColorsMarkTheLibraryOfTheSelectedNodeAsChanged) {
    program->Main().tree.NodeClicked("0DG1");
    ASSERT_FALSE(IsMarkedAsChanged());
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_TRUE(IsMarkedAsChanged());
    EXPECT_TRUE(program->view.nodes.contains("0DG2"));
}

TEST_F(SolidWorksCommandsTest, StandardColorsWhoseGroupCannotBeMadeLeaveTheLibraryItsFile) {
    program->prompts.typed = {"h", ""};
    Run(IDM_mnuColorNewGroup); // 0DG2
    program->Main().tree.NodeClicked("0DG1");
    Run(IDM_mnuColorDelGroup);
    program->Main().tree.NodeClicked("0D"); // the next group would be 0DG2 again
    const auto nodes = program->view.nodes;
    program->prompts.messages.clear();
    EXPECT_THROW(Run(IDM_mnuSWXGetStandardColor), RuntimeError);
    EXPECT_EQ(program->view.nodes, nodes);
    EXPECT_FALSE(IsMarkedAsChanged());
}

TEST_F(SolidWorksCommandsTest, ColorOfAFaceWithoutAnyColorIsNoNameAndZerosWithoutAMessage) {
    for (const Language& language : kLanguages) {
        Start("no-colors");
        Run(language.command);
        Select(Client().Face(0));
        Run(IDM_mnuSWXGetColor);
        EXPECT_EQ(program->view.colorName, "");
        for (const std::string& text : program->view.valueTexts)
            EXPECT_EQ(text, "0");
        EXPECT_EQ(program->view.smallCaption, " (R:0 G:0 B:0)");
        EXPECT_TRUE(program->prompts.messages.empty());
    }
}

TEST_F(SolidWorksCommandsTest, NameOfAPickedColorIsGermanInEveryLanguage) {
    Run(IDM_mnuOptionsLngEnglish);
    Select(Client().Face(2));
    Run(IDM_mnuSWXGetColor);
    EXPECT_EQ(program->view.colorName, "Neuer Farbwert");
}

TEST_F(SolidWorksCommandsTest, StandardColorsWithoutALibraryMakeOneFirst) {
    Run(IDM_mnuColorDelMainNode);
    ASSERT_TRUE(program->view.nodes.empty());
    program->prompts.typed = {"Made", ""}; // its name, and no first group
    Run(IDM_mnuSWXGetStandardColor);
    ASSERT_EQ(program->view.nodes.size(), 2U);
    EXPECT_EQ(program->view.nodes.begin()->second, "Made");
    EXPECT_EQ(program->view.rowCount, 12);
}

TEST_F(SolidWorksCommandsTest, StandardColorsWithoutALibraryAndWithoutANameChangeNothing) {
    Run(IDM_mnuColorDelMainNode);
    Run(IDM_mnuSWXGetStandardColor); // the question for a name is cancelled
    EXPECT_TRUE(program->view.nodes.empty());
    EXPECT_EQ(program->view.rowCount, 0);
}

TEST_F(SolidWorksCommandsTest, EmptyTableGivesAnEmptyGroup) {
    Start("standard-colors=0");
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_EQ(program->view.nodes.at("0DG2"), "<70>");
    EXPECT_EQ(program->view.selectedNode, "0DG2");
    EXPECT_EQ(program->view.rowCount, 0);
}

TEST_F(SolidWorksCommandsTest, StandardColorsAreSetInTheOrderOfTheList) {
    program->solidWorks.Part().Colors().Replace({{"a", 1}, {"b", 2}});
    Run(IDM_mnuSWXGetStandardColor);
    program->Main().list.ColumnClicked(1); // by name, the first click descending
    ASSERT_EQ(program->Main().rows.CellText(0, 1), "b");
    Run(IDM_mnuSWXSetStandardColor);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<73>\r\n<74>", 65, "TNT4SWX"},
                                                               {"<73>\r\n<74>", 65, "TNT4SWX"}}));
}

TEST_F(SolidWorksCommandsTest, RenamedStandardColorIsAskedOnceAndTheOthersAreWritten) {
    Run(IDM_mnuSWXGetStandardColor);
    program->Main().list.RowLabelEdited(3, "My green");
    std::vector<NamedColor> black = program->solidWorks.Part().Colors().Colors();
    for (NamedColor& entry : black)
        entry.color = 0;
    program->solidWorks.Part().Colors().Replace(black);
    Run(IDM_mnuSWXSetStandardColor);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<73>\r\n<74>", 65, "TNT4SWX"}}));
    const std::vector<NamedColor>& written = program->solidWorks.Part().Colors().Colors();
    for (std::size_t index = 0; index < written.size(); ++index)
        EXPECT_EQ(written[index].color == 0, index == 3) << index;
}

TEST_F(SolidWorksCommandsTest, CancelledQuestionOfTheStandardColorsIsNotFollowedByAMessage) {
    Run(IDM_mnuSWXGetStandardColor);
    program->Main().list.RowLabelEdited(0, "other");
    program->prompts.answers = {Answer::Cancel};
    Run(IDM_mnuSWXSetStandardColor);
    EXPECT_EQ(program->prompts.messages.size(), 1U);
    program->prompts.messages.clear();
    program->Main().tree.NodeClicked("0DG1"); // a group without colors
    program->prompts.answers = {Answer::Cancel};
    Run(IDM_mnuSWXSetStandardColor);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<72>\r\n<74>", 65, "TNT4SWX"}}));
}

TEST_F(SolidWorksCommandsTest, SmallerGroupWritesItsEntriesAndThenReportsAnError) {
    program->solidWorks.Part().Colors().Replace({{"a", 1}});
    Run(IDM_mnuSWXGetStandardColor);
    program->solidWorks.Part().Colors().Replace({{"a", 7}, {"b", 7}});
    EXPECT_EQ(ErrorNumberOf([&] { Run(IDM_mnuSWXSetStandardColor); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(program->solidWorks.Part().Colors().Colors()[0].color, 1U);
    EXPECT_EQ(program->solidWorks.Part().Colors().Colors()[1].color, 7U);
}

TEST_F(SolidWorksCommandsTest, StandardColorsSetWithoutEditsAreWrittenBackUnchanged) {
    const AutomationObjectPtr table = Client().Document()->Get("GetColorTable").AsObject();
    std::vector<std::int32_t> before;
    for (std::int32_t index = 0; index < 12; ++index)
        before.push_back(table->Invoke("GetColorRefAtIndex", {index}).AsInt32());
    Run(IDM_mnuSWXGetStandardColor);
    program->solidWorks.Log().Clear();
    Run(IDM_mnuSWXSetStandardColor);
    EXPECT_TRUE(program->prompts.messages.empty());
    EXPECT_EQ(std::ranges::count(program->solidWorks.Log().Records(), "SetColorRefAtIndex",
                                 &CallRecord::member),
              12);
    for (std::int32_t index = 0; index < 12; ++index)
        EXPECT_EQ(table->Invoke("GetColorRefAtIndex", {index}).AsInt32(),
                  before[static_cast<std::size_t>(index)]);
}

TEST_F(SolidWorksCommandsTest, FailingCallNamesItsMemberAndEverythingStays) {
    const auto texts = program->view.valueTexts;
    FailNext("SelectionManager", "error:Out of paint");
    try {
        Run(IDM_mnuSWXSetColor);
        FAIL() << "the form reports what a command throws";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Description(), "Out of paint");
        EXPECT_EQ(error.Member(), "SelectionManager");
    }
    EXPECT_EQ(program->view.valueTexts, texts);
    program->solidWorks.Gate().ClearFaults();
    Run(IDM_mnuSWXSetColor);
    EXPECT_EQ(program->view.infoPanel, "Okay setzen in SolidWorks");
}

TEST_F(SolidWorksCommandsTest, ProgressWindowIsTakenDownWhenAWalkFails) {
    FailNext("SelectedFeatureProperties", "error");
    program->progress.calls.clear();
    EXPECT_THROW(Run(IDM_mnuSWXClearColorPart), RuntimeError);
    EXPECT_EQ(program->progress.calls.front().substr(0, 9), "show <62>");
    EXPECT_FALSE(program->progress.isShown);
}

TEST_F(SolidWorksCommandsTest, StopEndsAWalkBeforeTheNextItemWithAMessageAndWithoutARebuild) {
    program->events.onEvents = [&] {
        if (program->events.count == 2)
            program->application.ProgressWindowEvents().StopClicked();
    };
    program->solidWorks.Log().Clear();
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"ProgressStopped", 64, kTitle}}));
    int cleared = 0;
    for (const CallRecord& call : program->solidWorks.Log().Records()) {
        cleared += call.member == "SelectedFeatureProperties" ? 1 : 0;
        EXPECT_NE(call.member, "EditRebuild");
        EXPECT_NE(call.member, "SelectedFaceProperties");
    }
    EXPECT_EQ(cleared, 1);
    EXPECT_FALSE(program->progress.isShown);
}

TEST_F(SolidWorksCommandsTest, CommandsDuringAWalkAreRefusedSilently) {
    program->events.onEvents = [&] { Run(IDM_mnuColorDelMainNode); };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_TRUE(program->prompts.messages.empty());
    EXPECT_TRUE(program->view.nodes.contains("0D"));
    Run(IDM_mnuColorDelMainNode);
    EXPECT_FALSE(program->view.nodes.contains("0D")) << "and work again afterwards";
}

TEST_F(SolidWorksCommandsTest, ViewButtonThatIsRefusedDuringAWalkComesUpAgain) {
    Run(IDM_mnuViewColorDetails);
    program->events.onEvents = [&] {
        program->view.presses = {{"View List", true}}; // as the toolbar does by itself
        Run(IDM_mnuViewColorList);
    };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_FALSE(program->view.presses.at("View List"));
    EXPECT_TRUE(program->view.presses.at("View Details"));
    EXPECT_EQ(program->view.listMode, ListViewMode::Details);
}

TEST_F(SolidWorksCommandsTest, NoDragStartsDuringAWalk) {
    program->prompts.typed = {"Lib", "g", "c"};
    Run(IDM_mnuColorNewMainNode);
    bool started = true;
    program->events.onEvents = [&] { started = program->Main().drag.DragStarted({}, {}); };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_FALSE(started);
    EXPECT_TRUE(program->Main().drag.DragStarted({}, {})) << "and afterwards it does";
    program->Main().drag.DragCancelled();
}

TEST_F(SolidWorksCommandsTest, QuitDuringACallThatFailsEndsTheProgramWithoutAMessage) {
    FailNext("SelectionManager", "error");
    program->solidWorks.Log().SetListener([&](const CallRecord& call) {
        if (call.member == "SelectionManager")
            Run(IDM_mnuQuit);
    });
    EXPECT_NO_THROW(Run(IDM_mnuSWXSetColor));
    EXPECT_TRUE(program->view.isEnded);
    program->solidWorks.Log().SetListener(nullptr);
}

TEST_F(SolidWorksCommandsTest, QuitDuringAWalkStopsItFirstAndEndsWithoutAMessage) {
    for (const auto& [scenario, command] : {std::pair{"default", IDM_mnuSWXClearColorPart},
                                            std::pair{"assembly", IDM_mnuSWXClearColorAssembly}}) {
        Start(scenario);
        bool endedDuringWalk = false;
        program->events.onEvents = [&] {
            Run(IDM_mnuQuit);
            endedDuringWalk = program->view.isEnded;
        };
        Run(command);
        EXPECT_FALSE(endedDuringWalk);
        EXPECT_EQ(program->events.count, 1);
        EXPECT_TRUE(program->view.isEnded);
        EXPECT_TRUE(program->prompts.messages.empty());
        EXPECT_FALSE(program->progress.isShown);
        EXPECT_EQ(program->solidWorks.Gate().LiveObjects(), 0U);
    }
}

TEST_F(SolidWorksCommandsTest, CloseBoxDuringAWalkEndsTheProgramToo) {
    program->events.onEvents = [&] { program->Main().frame.WindowClosing(); };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_TRUE(program->view.isEnded);
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, EndOfTheSessionWaitsForNoWalk) {
    bool endedDuringWalk = false;
    std::string storedBanner;
    program->events.onEvents = [&] {
        program->Main().frame.SessionEnding();
        endedDuringWalk = program->view.isEnded;
        storedBanner = program->registry.Text(FakeProgram::Setting("LastSponsorShown"));
    };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_TRUE(endedDuringWalk) << "the process may be gone before the walk is";
    EXPECT_NE(storedBanner, "(none)");
    EXPECT_EQ(program->events.count, 1) << "and the walk stops";
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, QuitIsSeenWhileAWalkWaitsForABusySolidWorks) {
    FailNext("IsSuppressed", "busy:always");
    program->events.onEvents = [&] {
        if (program->events.count == 3) // before the item, then after each rejection
            Run(IDM_mnuQuit);
    };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_TRUE(program->view.isEnded);
    EXPECT_TRUE(program->prompts.messages.empty());
    EXPECT_EQ(program->solidWorks.Gate().RejectedCalls(), 2U);
}

TEST_F(SolidWorksCommandsTest, StopIsSeenWhileAWalkWaitsForABusySolidWorks) {
    FailNext("IsSuppressed", "busy:always");
    program->events.onEvents = [&] {
        if (program->events.count == 5)
            program->application.ProgressWindowEvents().StopClicked();
    };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"ProgressStopped", 64, kTitle}}));
    EXPECT_EQ(program->solidWorks.Gate().RejectedCalls(), 4U);
    EXPECT_FALSE(program->progress.isShown);
}

TEST_F(SolidWorksCommandsTest, StatusOfAnEarlierCommandIsGoneWhenTheNextOneBegins) {
    for (const int command : kAllCommands) {
        program->prompts.typed = {"new"};
        program->view.infoPanel = "earlier";
        program->service.SetRunning(false); // nothing else is shown in the panel
        Run(command);
        EXPECT_EQ(program->view.infoPanel, "");
    }
}

TEST_F(SolidWorksCommandsTest, BusySolidWorksIsToldInTheStatusPanelUntilItAnswers) {
    program->solidWorks.Gate().AddFault(ParseFault("1:busy:2"));
    std::vector<std::string> panels;
    program->events.onDrop = [&] {
        panels.push_back(program->view.infoPanel);
        return false;
    };
    Run(IDM_mnuSWXSetColor);
    EXPECT_EQ(panels, (std::vector<std::string>{"<160>", "<160>", ""}));
    EXPECT_EQ(program->view.infoPanel, "Okay setzen in SolidWorks");
}

TEST_F(SolidWorksCommandsTest, EscapeGivesUpABusySolidWorksInEveryCommand) {
    for (const int command : kAllCommands) {
        Start(command == IDM_mnuSWXSetColorComponent ||
                      command == IDM_mnuSWXClearComponentColorFromSelection ||
                      command == IDM_mnuSWXClearColorAssembly
                  ? "assembly"
                  : "default");
        program->prompts.typed = {"new"};
        program->solidWorks.Gate().AddFault(ParseFault("2:busy:always"));
        program->events.onDrop = [&] { return program->events.drops == 3; };
        EXPECT_NO_THROW(Run(command));
        EXPECT_EQ(program->solidWorks.Gate().RejectedCalls(), 3U);
        EXPECT_EQ(program->view.infoPanel, "<161>");
        EXPECT_TRUE(program->prompts.messages.empty());
        EXPECT_EQ(program->solidWorks.Gate().LiveObjects(), 0U);
    }
}

TEST_F(SolidWorksCommandsTest, GivingUpWhileAColorIsReadLeavesTheEditorAsItIs) {
    Select(Client().Face(0));
    const std::string name = program->view.colorName;
    FailNext("MaterialPropertyValues", "busy:always");
    program->events.onDrop = [] { return true; };
    Run(IDM_mnuSWXGetColor);
    EXPECT_EQ(program->solidWorks.Gate().RejectedCalls(), 1U) << "and no other source is asked";
    EXPECT_EQ(program->view.colorName, name);
    EXPECT_EQ(program->view.infoPanel, "<161>");
}

TEST_F(SolidWorksCommandsTest, QuitWhileSolidWorksIsBusyWaitsNoLonger) {
    program->solidWorks.Gate().AddFault(ParseFault("2:busy:always"));
    program->events.onDrop = [&] {
        Run(IDM_mnuQuit);
        return false;
    };
    Run(IDM_mnuSWXSetColor);
    EXPECT_EQ(program->solidWorks.Gate().RejectedCalls(), 1U);
    EXPECT_TRUE(program->view.isEnded);
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, CommandsGivenWhileSolidWorksIsBusyAreNotRunAfterwards) {
    program->solidWorks.Gate().AddFault(ParseFault("2:busy:3"));
    program->events.onDrop = [&] {
        Run(IDM_mnuSWXSetColor);
        return false;
    };
    Run(IDM_mnuSWXSetColor);
    EXPECT_EQ(program->solidWorks.Part().RebuildCount(), 1);
}

TEST_F(SolidWorksCommandsTest, PointerIsAnHourGlassForAsLongAsACommandRuns) {
    bool isWaiting = false;
    program->solidWorks.Log().SetListener(
        [&](const CallRecord&) { isWaiting = program->view.isWaiting; });
    for (const int command : kAllCommands) {
        program->prompts.typed = {"new"};
        isWaiting = false;
        Run(command);
        EXPECT_TRUE(isWaiting);
        EXPECT_FALSE(program->view.isWaiting);
    }
    program->solidWorks.Log().SetListener(nullptr);
}

TEST_F(SolidWorksCommandsTest, PointerIsNoHourGlassAnyMoreAfterACallHasFailed) {
    program->solidWorks.Gate().AddFault(ParseFault("2:error"));
    EXPECT_THROW(Run(IDM_mnuSWXSetColor), RuntimeError);
    EXPECT_EQ(program->view.waits, 1);
    EXPECT_FALSE(program->view.isWaiting);
}

TEST_F(SolidWorksCommandsTest, EscapeStopsAWalkBeforeItsWindowIsShown) {
    program->events.onEvents = [&] {
        if (program->events.count == 2)
            program->Main().frame.EscapePressed();
    };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"ProgressStopped", 64, kTitle}}));
    EXPECT_EQ(program->events.count, 2);
}

TEST_F(SolidWorksCommandsTest, EscapeWithoutACommandStopsNothing) {
    program->Main().frame.EscapePressed();
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_EQ(program->view.rowCount, 12);
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, StoppedImportKeepsWhatItHasReadAndSaysSo) {
    program->events.onEvents = [&] {
        if (program->events.count == 4)
            program->application.ProgressWindowEvents().StopClicked();
    };
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_EQ(program->view.rowCount, 3);
    EXPECT_EQ(Row(2).at(9), "12");
    EXPECT_EQ(program->view.selectedRow, 2);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"ProgressStopped", 64, kTitle}}));
    EXPECT_TRUE(IsMarkedAsChanged());
}

TEST_F(SolidWorksCommandsTest, ImportThatIsStoppedBeforeItsFirstColorMakesNoGroup) {
    const auto nodes = program->view.nodes;
    program->events.onEvents = [&] { program->Main().frame.EscapePressed(); };
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_EQ(program->view.nodes, nodes);
    EXPECT_FALSE(IsMarkedAsChanged());
}

TEST_F(SolidWorksCommandsTest, ImportGoesToTheNodeThatWasSelectedWhenItBegan) {
    program->prompts.typed = {"Second", "", ""};
    Run(IDM_mnuColorNewMainNode);
    program->Main().tree.NodeClicked("0DG1");
    TypeValue(4, "33");
    program->events.onEvents = [&] {
        program->Main().tree.NodeClicked("1D");
        TypeValue(4, "44");
    };
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_EQ(program->view.selectedNode, "0DG2");
    EXPECT_EQ(Row(0).at(5), "33");
}

TEST_F(SolidWorksCommandsTest, QuitDuringAnImportImportsNothing) {
    const auto nodes = program->view.nodes;
    program->events.onEvents = [&] { Run(IDM_mnuQuit); };
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_TRUE(program->view.isEnded);
    EXPECT_EQ(program->view.nodes, nodes);
    EXPECT_TRUE(program->prompts.messages.empty());
}

TEST_F(SolidWorksCommandsTest, ImportThatTheEditorRefusesLeavesAnEmptyGroupThatTheListShows) {
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"kept"};
    Run(IDM_mnuColorNewColor);
    EXPECT_THROW(TypeValue(4, "."), RuntimeError);
    EXPECT_THROW(Run(IDM_mnuSWXGetStandardColor), RuntimeError);
    EXPECT_EQ(program->view.selectedNode, "0DG2");
    EXPECT_EQ(program->view.rowCount, 0);
}

TEST_F(SolidWorksCommandsTest, ImportFillsTheListOnceHoweverLongTheTableIs) {
    Start("standard-colors=500");
    const int before = program->view.rowChanges;
    Run(IDM_mnuSWXGetStandardColor);
    EXPECT_EQ(program->view.rowCount, 500);
    EXPECT_EQ(program->view.rowChanges, before + 1);
}

TEST_F(SolidWorksCommandsTest, CommandsWorkAgainAfterSolidWorksWasClosedAndStartedAnew) {
    Run(IDM_mnuSWXSetColor);
    program->service.SetRunning(false);
    Run(IDM_mnuSWXSetColor);
    EXPECT_EQ(program->prompts.messages, (std::vector<Message>{{"<0>", 64, kTitle}}));
    program->service.SetRunning(true);
    program->view.infoPanel.clear();
    Run(IDM_mnuSWXSetColor);
    EXPECT_EQ(program->view.infoPanel, "Okay setzen in SolidWorks");
}

TEST_F(SolidWorksCommandsTest, DyingSolidWorksIsReportedAndNothingIsWrittenIntoTheLibrary) {
    program->Main().tree.NodeClicked("0DG1");
    program->prompts.typed = {"kept"};
    Run(IDM_mnuColorNewColor);
    const std::string red = program->Main().rows.CellText(0, 2);
    Select(Client().Face(0));
    FailNext("MaterialPropertyValues", "die");
    EXPECT_THROW(Run(IDM_mnuSWXNewColorUpdate), RuntimeError);
    EXPECT_EQ(program->Main().rows.CellText(0, 1), "kept");
    EXPECT_EQ(program->Main().rows.CellText(0, 2), red);
    program->solidWorks.Gate().ClearFaults();
}

TEST_F(SolidWorksCommandsTest, NothingElseIsEditedDuringAWalk) {
    program->events.onEvents = [&] {
        program->Main().frame.RunCommand(IDM_mnuColorChange);
        program->Main().frame.RunCommand(IDM_mnuColorRenameNode);
        EXPECT_FALSE(program->Main().tree.MayEditNode());
        EXPECT_FALSE(program->Main().list.MayEditRow());
    };
    Run(IDM_mnuSWXClearColorPart);
    EXPECT_TRUE(program->prompts.colorRequests.empty());
    EXPECT_EQ(program->view.editedNode, "");
    EXPECT_TRUE(program->Main().tree.MayEditNode());
    EXPECT_TRUE(program->Main().list.MayEditRow());
}

} // namespace
