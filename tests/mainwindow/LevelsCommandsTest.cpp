// Rules: Which color is seen
// The whole program on fakes: what the window shows, and what its buttons do.
#include "mainwindow/LevelsCommands.h"

#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"
#include "tests/fakes/MemberFault.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;
using Texts = std::vector<std::string>;

constexpr MaterialValues kOwn{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};
const std::array<std::string, kColorValueCount> kOwnTexts{"51", "102", "153", "10", "20",
                                                          "30", "40",  "50",  "60"};

constexpr const char* kFace = "<257>";
constexpr const char* kFeature = "<258>";
constexpr const char* kBody = "<259>";
constexpr const char* kPart = "<260>";
constexpr const char* kSeen = "<253>";
constexpr const char* kCovered = "<254>";
constexpr const char* kNoColor = "<255>";
constexpr const char* kNothingRead = "<276>";

// A part whose first face and whole have colors; the face is selected.
class LevelsCommandsTest : public testing::Test {
protected:
    LevelsCommandsTest() {
        program.levelsWindow.isMade = false;
        program.application.Start();
        Part().FaceAt(0)->SetColor(kOwn);
        Part().FaceAt(0)->Select(false);
    }

    void Run(int command) { program.Main().frame.RunCommand(command); }
    void Read() { Run(IDM_mnuSWXColorLevels); }
    LevelsEvents& Window() { return program.application.LevelsWindowEvents(); }
    PartDocument& Part() { return program.solidWorks.Part(); }
    void FailNext(const std::string& member, const std::string& fault) {
        FailAt(member, fault, program.retryingService, program.solidWorks.Gate());
    }
    // Texts of a column of the window, from 0.
    [[nodiscard]] Texts Column(std::size_t column) const {
        Texts texts;
        for (const LevelRow& row : program.levels.rows)
            texts.push_back(row.cells.at(column));
        return texts;
    }
    [[nodiscard]] Texts Levels() const { return Column(0); }
    [[nodiscard]] Texts States() const { return Column(1); }
    [[nodiscard]] std::size_t Calls() { return program.solidWorks.Log().Lines().size(); }
    void ExpectNothingShown() const {
        EXPECT_EQ(Levels(), Texts{});
        EXPECT_EQ(program.levels.selectedRow, -1);
        EXPECT_EQ(program.levels.sentence, kNothingRead);
    }

    FakeProgram program;
};

TEST_F(LevelsCommandsTest, WindowShowsTheLevelsFromTheTopDownAndSelectsTheSeenOne) {
    Part().FaceAt(0)->SetColor({});
    Part().Solid()->SetColor(kOwn);
    Read();
    EXPECT_EQ(program.levels.shown, 1);
    EXPECT_EQ(program.levels.caption, "<250>");
    EXPECT_EQ(Levels(), (Texts{kFace, kFeature, kBody, kPart}));
    EXPECT_EQ(States(), (Texts{kNoColor, kNoColor, kSeen, kCovered}));
    EXPECT_EQ(program.levels.selectedRow, 2);
    EXPECT_EQ(program.levels.sentence, "Die Farbe <265> verdeckt die <266>.");
    EXPECT_EQ(program.levels.rows[2].color, MakeColorNumber(51, 102, 153));
    EXPECT_FALSE(program.levels.rows[0].color);
}

TEST_F(LevelsCommandsTest, RowsHaveTheNineValuesAsTheProgramShowsThem) {
    Read();
    const LevelCells& cells = program.levels.rows.at(0).cells;
    EXPECT_TRUE(std::equal(kOwnTexts.begin(), kOwnTexts.end(), cells.begin() + 2, cells.end()));
}

TEST_F(LevelsCommandsTest, OnlyColoredComponentsFacesAndFeaturesCanBeCleared) {
    Part().Solid()->SetColor(kOwn);
    Read();
    std::vector<bool> can;
    for (const LevelRow& row : program.levels.rows)
        can.push_back(row.canBeCleared);
    EXPECT_EQ(can, (std::vector<bool>{true, false, false, false}));
}

TEST_F(LevelsCommandsTest, ReadingAgainShowsWhatIsSelectedThen) {
    Read();
    Part().FeatureAt(2)->Select(false);
    EXPECT_EQ(Levels().front(), kFace) << "the window follows when it is told to";
    Window().ReadClicked();
    EXPECT_EQ(Levels(), (Texts{kFeature, kBody, kPart}));
    EXPECT_EQ(program.levels.shown, 2);
}

TEST_F(LevelsCommandsTest, LevelsAreEmptyAfterAReadingThatWasRefusedOrHasFailed) {
    Read();
    program.service.SetRunning(false);
    Window().ReadClicked();
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<0>", 64, "Chromix - TNT"}}));
    ExpectNothingShown();
    program.service.SetRunning(true);
    Window().ReadClicked();
    EXPECT_EQ(Levels().size(), 4U);
    FailNext("SelectionManager", "error");
    EXPECT_THROW(Window().ReadClicked(), RuntimeError);
    ExpectNothingShown();
    EXPECT_EQ(program.levels.shown, 2);
}

TEST_F(LevelsCommandsTest, WindowDoesNotOpenWhenNothingCouldBeRead) {
    Part().Edges().front()->Select(false);
    Read();
    EXPECT_FALSE(program.levelsWindow.isMade);
    EXPECT_EQ(program.prompts.messages,
              (std::vector<Message>{{"\r\nNoValidSelection: 1", 64, "Chromix - TNT"}}));
}

TEST_F(LevelsCommandsTest, WindowDoesNotOpenWhenTheProgramIsToEnd) {
    bool isAsked = false;
    program.retryingService.onCall = [&](const std::string&) {
        if (!std::exchange(isAsked, true))
            Run(IDM_mnuQuit);
    };
    Read();
    EXPECT_TRUE(isAsked);
    EXPECT_FALSE(program.levelsWindow.isMade);
}

TEST_F(LevelsCommandsTest, TakenColorStandsInTheEditorAsOneThatWasGot) {
    Read();
    const auto calls = Calls();
    Window().TakeClicked(0);
    const auto texts = program.view.valueTexts;
    const std::string name = program.view.colorName;
    EXPECT_EQ(Calls(), calls) << "SolidWorks is not asked";
    EXPECT_TRUE(std::equal(kOwnTexts.begin(), kOwnTexts.end(), texts.begin(), texts.end()));
    Run(IDM_mnuSWXGetColor);
    EXPECT_EQ(program.view.colorName, name);
    EXPECT_EQ(program.view.valueTexts, texts);
}

TEST_F(LevelsCommandsTest, CoveredColorCanBeTakenToo) {
    Part().SetColor(MaterialValues{1, 0, 0, 0, 0, 0, 0, 0, 0});
    Read();
    Window().TakeClicked(3);
    EXPECT_EQ(program.view.valueTexts.at(0), "255");
    EXPECT_EQ(program.view.valueTexts.at(1), "0");
}

TEST_F(LevelsCommandsTest, NothingIsTakenOrClearedFromALevelThatCannot) {
    Read();
    const auto texts = program.view.valueTexts;
    const auto calls = Calls();
    for (const int row : {-1, 1, 2, 4}) { // none, or without a color
        Window().TakeClicked(row);
        Window().ClearClicked(row);
    }
    Window().ClearClicked(3); // the part's
    for (const int command : {IDC_cmdTakeLevel, IDC_cmdClearLevel})
        Run(command); // without a row that was chosen
    EXPECT_EQ(program.view.valueTexts, texts);
    EXPECT_EQ(Calls(), calls);
    EXPECT_TRUE(Part().FaceAt(0)->Color());
}

TEST_F(LevelsCommandsTest, ClearedLevelIsShownWithoutAColorAndTheNextOneIsSeen) {
    Read();
    Window().ClearClicked(0);
    EXPECT_FALSE(Part().FaceAt(0)->Color());
    EXPECT_EQ(States(), (Texts{kNoColor, kNoColor, kNoColor, kSeen}));
    EXPECT_EQ(program.levels.selectedRow, 0) << "the same key again clears no other level";
    EXPECT_FALSE(program.levels.rows[0].canBeCleared);
    EXPECT_EQ(program.view.infoPanel, "Okay setzen in SolidWorks");
    EXPECT_EQ(program.prompts.messages, std::vector<Message>{});
    EXPECT_EQ(program.levels.shown, 1) << "the window is not brought to the front";
}

// The levels are all that can be compared.
TEST_F(LevelsCommandsTest, OfTwoObjectsWithEqualLevelsTheOneThatIsSelectedNowIsCleared) {
    const MaterialOverride color = Part().FaceAt(0)->Color();
    Part().FaceAt(1)->SetColor(color);
    Read();
    Part().FaceAt(1)->Select(false);
    Window().ClearClicked(0);
    EXPECT_FALSE(Part().FaceAt(1)->Color());
    EXPECT_EQ(Part().FaceAt(0)->Color(), color);
}

TEST_F(LevelsCommandsTest, NothingIsClearedWhenSomethingElseIsSelectedByNow) {
    Read();
    Part().FeatureAt(2)->Select(false);
    Window().ClearClicked(0);
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<275>", 64, "Chromix - TNT"}}));
    EXPECT_TRUE(Part().FaceAt(0)->Color());
    EXPECT_EQ(Levels(), (Texts{kFeature, kBody, kPart})) << "the new ones are shown";
    EXPECT_EQ(program.view.infoPanel, "");
}

TEST_F(LevelsCommandsTest, LevelsAreEmptyAfterAClearThatHasFailed) {
    Read();
    FailNext("SelectedFaceProperties", "error");
    EXPECT_THROW(Window().ClearClicked(0), RuntimeError);
    ExpectNothingShown();
    program.retryingService.onCall = {};
    program.solidWorks.Gate().ClearFaults();
    Read();
    Window().ClearClicked(0);
    EXPECT_FALSE(Part().FaceAt(0)->Color()) << "the next one works";
}

TEST_F(LevelsCommandsTest, NothingIsDoneWhileAnOperationRuns) {
    Part().SetColor(MaterialValues{1, 0, 0, 0, 0, 0, 0, 0, 0});
    Read();
    const auto texts = program.view.valueTexts;
    bool isRun = false;
    program.retryingService.onCall = [&](const std::string&) {
        if (std::exchange(isRun, true))
            return;
        const auto calls = Calls();
        Window().TakeClicked(3);
        Window().ClearClicked(0);
        Window().ReadClicked();
        EXPECT_EQ(Calls(), calls);
        EXPECT_EQ(program.view.valueTexts, texts);
    };
    Run(IDM_mnuSWXSetColorComponent); // refused: no assembly
    EXPECT_TRUE(isRun);
    EXPECT_TRUE(Part().FaceAt(0)->Color());
}

TEST_F(LevelsCommandsTest, NothingOfItIsAStep) {
    Read();
    Window().TakeClicked(0);
    Window().ClearClicked(0);
    EXPECT_FALSE(program.view.menuEnabled[IDM_mnuEditUndo]);
}

TEST_F(LevelsCommandsTest, BusySolidWorksIsWaitedForAndCanBeGivenUp) {
    Read();
    FailNext("GetFeature", "busy:always");
    program.events.onDrop = [] { return true; };
    Window().ReadClicked();
    EXPECT_EQ(program.view.infoPanel, "<161>");
    ExpectNothingShown();
}

TEST_F(LevelsCommandsTest, WindowSpeaksTheLanguageThatIsChosenWhileItIsOpen) {
    Read();
    for (const char* name : {"250", "251", "257"})
        program.profile.values[{"C:\\prog\\tntlng_de.ini", "Info", std::string("Text.") + name}] =
            std::string("deutsch ") + name;
    Run(IDM_mnuOptionsLngGerman);
    EXPECT_EQ(program.levels.caption, "deutsch 250");
    EXPECT_EQ(program.levels.columns.front(), "deutsch 251");
    EXPECT_EQ(Levels().front(), "deutsch 257");
}

TEST_F(LevelsCommandsTest, WindowIsAboveAllOthersWhileTheMainWindowIs) {
    Read();
    Run(IDM_mnuOptionsAlwaysOnTop);
    Read();
    EXPECT_EQ(program.levels.topmost, (std::vector<bool>{true, false}));
}

TEST_F(LevelsCommandsTest, WindowOpensBesideTheMainWindowAndThenWhereItWasClosed) {
    program.mainWindow.bounds = {1000, 2000, 3000, 4000};
    Read();
    EXPECT_EQ(program.levels.bounds.left, 4000);
    EXPECT_EQ(program.levels.bounds.top, 2000);
    program.levels.bounds = {1500, 1500, 9000, 4500};
    Window().LevelsClosing();
    program.levels.bounds = {};
    Read();
    EXPECT_EQ(program.levels.bounds.left, 1500);
    program.levels.bounds.left = 3000;
    Run(IDM_mnuQuit);
    FakeProgram next;
    next.registry.values = program.registry.values;
    next.application.Start();
    next.Main().frame.RunCommand(IDM_mnuSWXColorLevels);
    EXPECT_EQ(next.levels.bounds.left, 3000);
}

} // namespace
