// Rules: Finding colors
// The whole program on fakes: what the window lists, when it begins anew, where a hit leads to.
#include "mainwindow/FindCommands.h"

#include "common/InfoTextNumber.h"
#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

std::string Line(const std::string& group, const std::string& name, const RedGreenBlue& color) {
    std::string line = "\"E#" + name + "=" + group + ":" + name;
    for (const int value : {color.red, color.green, color.blue, 100, 100, 100, 30, 0, 0})
        line += "\xF7" + std::to_string(value);
    return line + "\"\r\n";
}

// Two libraries: Lacke with the groups Rot (Feuerrot, Weinrot) and Blau (Enzianblau), and Metalle
// with the group Edel (Gold, Rotgold).
class FindCommandsTest : public testing::Test {
protected:
    explicit FindCommandsTest(std::chrono::milliseconds slice = FindHits::kSlice)
        : program("default", nullptr, slice) {
        Open("C:\\lacke.tnt", "\"D#Lacke=0D:5\"\r\n\"G#Rot=0DG1\"\r\n\"G#Blau=0DG2\"\r\n" +
                                  Line("0DG1", "Feuerrot", {175, 43, 30}) +
                                  Line("0DG1", "Weinrot", {94, 33, 41}) +
                                  Line("0DG2", "Enzianblau", {14, 41, 75}));
        Open("C:\\metalle.tnt", "\"D#Metalle=0D:3\"\r\n\"G#Edel=0DG1\"\r\n" +
                                    Line("0DG1", "Gold", {255, 206, 77}) +
                                    Line("0DG1", "Rotgold", {183, 110, 121}));
        program.Main().tree.NodeClicked("0D");
    }

    void Open(const std::string& path, const std::string& content) {
        program.files.contents[path] = content;
        if (!isStarted)
            program.application.Start();
        isStarted = true;
        program.Main().frame.FilesDropped({path});
    }
    void Run(int command) { program.Main().frame.RunCommand(command); }
    void Type(const std::string& text) { Window().TextChanged(text); }
    FindEvents& Window() { return program.application.FindWindowEvents(); }
    // The window's timer, so often that a change has been seen and followed.
    void TimePasses() {
        for (int tick = 0; tick < 3; ++tick)
            Window().Ticked();
    }
    Texts Column(int column) {
        Texts texts;
        for (int row = 0; row < program.find.rowCount; ++row)
            texts.push_back(Window().CellText(row, column));
        return texts;
    }
    Texts Names() { return Column(1); }
    // The row that is selected in the main window's list.
    std::string SelectedColor() {
        return program.view.selectedRow < 0
                   ? ""
                   : program.Main().rows.CellText(program.view.selectedRow, 1);
    }
    void Delete(const std::string& group, int row) {
        program.Main().tree.NodeClicked(group);
        program.Main().list.RowClicked(row);
        program.prompts.answers = {Answer::Ok};
        Run(IDM_mnuColorDelColor);
    }

    FakeProgram program;
    bool isStarted = false;
};

TEST_F(FindCommandsTest, RowsAreTheColorsOfAllLibrariesThatHaveTheWordsInTheirNames) {
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.shown, 1);
    EXPECT_EQ(Names(), Texts{});
    Type("ROT");
    EXPECT_EQ(Names(), (Texts{"Feuerrot", "Weinrot", "Rotgold"}));
    EXPECT_EQ(Column(2), (Texts{"Rot", "Rot", "Edel"}));
    EXPECT_EQ(Column(3), (Texts{"Lacke", "Lacke", "Metalle"}));
    Type("gold rot");
    EXPECT_EQ(Names(), Texts{"Rotgold"});
}

TEST_F(FindCommandsTest, ValueFindsTheColorsThatHaveIt) {
    Run(IDM_mnuEditFind);
    for (const char* text : {"#ffce4d", "255 206 77"}) {
        Type(text);
        EXPECT_EQ(Names(), Texts{"Gold"}) << text;
        EXPECT_EQ(Window().ColorOfRow(0), MakeColorNumber(255, 206, 77));
    }
}

TEST_F(FindCommandsTest, StatusTellsHowManyOfHowMany) {
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.status, "0 von 5 Farben");
    Type("rot");
    EXPECT_EQ(program.find.status, "3 von 5 Farben");
    Window().LikeActiveColorChosen(true);
    EXPECT_EQ(program.find.status, "Die 3 ähnlichsten von 5 Farben");
}

TEST_F(FindCommandsTest, FirstRowIsSelectedUntilTheUserSelectsAnother) {
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.selectedRow, -1);
    Type("rot");
    EXPECT_EQ(program.find.selectedRow, 0);
    Window().RowSelected(1);
    Delete("0DG1", 0); // Feuerrot
    TimePasses();
    EXPECT_EQ(Names(), (Texts{"Weinrot", "Rotgold"}));
    EXPECT_EQ(program.find.selectedRow, 0) << "the same color";
    Type("gold");
    EXPECT_EQ(program.find.selectedRow, 0);
}

TEST_F(FindCommandsTest, ChosenRowSelectsItsGroupAndColorAndGivesTheListTheFocus) {
    Run(IDM_mnuEditFind);
    Type("rotgold");
    Window().RowChosen(0);
    EXPECT_EQ(program.view.nodes.at(program.view.selectedNode), "Edel");
    EXPECT_EQ(SelectedColor(), "Rotgold");
    EXPECT_EQ(program.view.visibleRow, 1);
    EXPECT_EQ(program.view.colorName, "Rotgold");
    EXPECT_EQ(program.view.rowFocuses, 1);
}

TEST_F(FindCommandsTest, GroupRemembersTheColorThatWasGoneTo) {
    Run(IDM_mnuEditFind);
    Type("weinrot");
    Window().RowChosen(0);
    program.Main().tree.NodeClicked("0DG2");
    program.Main().tree.NodeClicked("0DG1");
    EXPECT_EQ(SelectedColor(), "Weinrot");
}

TEST_F(FindCommandsTest, GoingToAColorIsNoStep) {
    Run(IDM_mnuEditFind);
    Type("rotgold");
    Window().RowChosen(0);
    Run(IDM_mnuEditFindNext);
    EXPECT_FALSE(program.view.menuEnabled[IDM_mnuEditUndo]);
}

TEST_F(FindCommandsTest, NextAndPreviousGoThroughTheHitsAndRound) {
    Run(IDM_mnuEditFind);
    Type("rot");
    Texts visited;
    for (int time = 0; time < 4; ++time) {
        Run(IDM_mnuEditFindNext);
        visited.push_back(SelectedColor());
        EXPECT_EQ(Names().at(static_cast<std::size_t>(program.find.selectedRow)), visited.back());
    }
    EXPECT_EQ(visited, (Texts{"Feuerrot", "Weinrot", "Rotgold", "Feuerrot"}));
    Run(IDM_mnuEditFindPrevious);
    EXPECT_EQ(SelectedColor(), "Rotgold");
    EXPECT_EQ(program.view.rowFocuses, 0) << "the focus stays";
    EXPECT_EQ(program.find.shown, 1);
}

TEST_F(FindCommandsTest, PreviousBeginsAtTheLastHit) {
    Run(IDM_mnuEditFind);
    Type("rot");
    Run(IDM_mnuEditFindPrevious);
    EXPECT_EQ(SelectedColor(), "Rotgold");
}

TEST_F(FindCommandsTest, NextIsTheOneAfterTheRowThatTheUserHasSelected) {
    Run(IDM_mnuEditFind);
    Type("rot");
    Window().RowSelected(1);
    Run(IDM_mnuEditFindNext);
    EXPECT_EQ(SelectedColor(), "Rotgold");
}

TEST_F(FindCommandsTest, NextAfterAHitThatIsNoneAnyMoreIsTheOneInItsPlace) {
    Run(IDM_mnuEditFind);
    Type("rot");
    Run(IDM_mnuEditFindNext);
    program.Main().list.RowLabelEdited(0, "renamed");
    Run(IDM_mnuEditFindNext);
    EXPECT_EQ(SelectedColor(), "Weinrot");
    program.Main().list.RowLabelEdited(1, "this too");
    Run(IDM_mnuEditFindPrevious);
    EXPECT_EQ(SelectedColor(), "Rotgold") << "round";
}

TEST_F(FindCommandsTest, NextWithoutHitsOpensTheWindow) {
    Run(IDM_mnuEditFindNext);
    EXPECT_EQ(program.find.shown, 1);
    Window().FindClosing();
    Run(IDM_mnuEditFindPrevious);
    EXPECT_EQ(program.find.shown, 2);
}

TEST_F(FindCommandsTest, HitsAreGoneThroughWhileTheWindowIsClosed) {
    Run(IDM_mnuEditFind);
    Type("rot");
    Window().FindClosing();
    Delete("0DG1", 0);
    Run(IDM_mnuEditFindNext);
    EXPECT_EQ(SelectedColor(), "Weinrot");
    EXPECT_EQ(program.find.shown, 1);
    EXPECT_EQ(program.find.pace, 0);
}

TEST_F(FindCommandsTest, HitsFollowTheLibraries) {
    Run(IDM_mnuEditFind);
    Type("rot");
    Delete("0DG1", 1);
    EXPECT_EQ(Column(1), (Texts{"Feuerrot", "", "Rotgold"})) << "not asked for what has gone";
    EXPECT_EQ(Window().ColorOfRow(1), 0U);
    TimePasses();
    EXPECT_EQ(Names(), (Texts{"Feuerrot", "Rotgold"}));
    EXPECT_EQ(program.find.status, "2 von 4 Farben");
    Run(IDM_mnuEditUndo);
    TimePasses();
    EXPECT_EQ(Names(), (Texts{"Feuerrot", "Weinrot", "Rotgold"}));
    program.Main().tree.NodeLabelEdited("0DG1", "Rottöne");
    const int before = program.find.rowChanges;
    TimePasses();
    EXPECT_GT(program.find.rowChanges, before) << "the name of a group is in the rows";
    EXPECT_EQ(Column(2).front(), "Rottöne");
}

TEST_F(FindCommandsTest, RowsOfALibraryThatIsClosedGo) {
    Run(IDM_mnuEditFind);
    Type("rot");
    program.Main().tree.NodeClicked("0D");
    Run(IDM_mnuFileClose);
    for (int row = 0; row < program.find.rowCount; ++row)
        for (int column = 1; column <= 4; ++column)
            static_cast<void>(Window().CellText(row, column));
    TimePasses();
    EXPECT_EQ(Names(), Texts{"Rotgold"});
}

TEST_F(FindCommandsTest, RowWhoseColorHasGoneLeadsNowhere) {
    Run(IDM_mnuEditFind);
    Type("weinrot");
    Delete("0DG1", 1);
    program.Main().tree.NodeClicked("0DG2");
    Window().RowChosen(0);
    EXPECT_EQ(program.view.selectedNode, "0DG2");
    EXPECT_EQ(program.view.rowFocuses, 0);
}

TEST_F(FindCommandsTest, ChangeThatGoesOnIsWaitedFor) {
    Run(IDM_mnuEditFind);
    Type("rot");
    const int before = program.find.rowChanges;
    for (int time = 0; time < 3; ++time) { // as a file that is being read
        program.Main().list.RowLabelEdited(0, "Rot " + std::to_string(time));
        Window().Ticked();
    }
    EXPECT_EQ(program.find.rowChanges, before);
    EXPECT_LT(program.find.pace, 50) << "it is looked at again soon";
    Window().Ticked();
    EXPECT_GT(program.find.rowChanges, before);
}

TEST_F(FindCommandsTest, LikeTheActiveColorSortsAllColorsByTheirDifference) {
    program.Main().tree.NodeClicked("0DG1"); // Feuerrot is active
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.swatch, MakeColorNumber(175, 43, 30));
    Window().LikeActiveColorChosen(true);
    EXPECT_TRUE(program.find.hasDifferences);
    EXPECT_EQ(Names(), (Texts{"Feuerrot", "Weinrot", "Rotgold", "Enzianblau", "Gold"}));
    EXPECT_EQ(Column(4).front(), "0,00");
    Texts texts = Column(4);
    for (const std::string& text : texts)
        EXPECT_EQ(text.size() - text.find(','), 3U) << text;
    Window().LikeActiveColorChosen(false);
    EXPECT_FALSE(program.find.hasDifferences);
    EXPECT_EQ(Names(), Texts{});
}

TEST_F(FindCommandsTest, TextLeavesOthersOutAlsoOfThoseThatAreLikeTheActiveColor) {
    Run(IDM_mnuEditFind);
    Window().LikeActiveColorChosen(true);
    Type("gold");
    EXPECT_EQ(Names(), (Texts{"Rotgold", "Gold"}));
}

TEST_F(FindCommandsTest, NearestFollowTheActiveColor) {
    Run(IDM_mnuEditFind);
    Window().LikeActiveColorChosen(true);
    program.Main().tree.NodeClicked("0DG2"); // Enzianblau
    TimePasses();
    EXPECT_EQ(Names().front(), "Enzianblau");
    EXPECT_EQ(program.find.swatch, MakeColorNumber(14, 41, 75));
    for (const auto& [index, text] : {std::pair{0U, "255"}, {1U, "206"}, {2U, "78"}})
        program.Main().editor.ValueTextChanged(index, text);
    TimePasses();
    EXPECT_EQ(Names().front(), "Gold");
    EXPECT_EQ(program.find.swatch, MakeColorNumber(255, 206, 78));
}

TEST_F(FindCommandsTest, NearestStayThoseOfTheColorBeforeWhileTheyAreGoneThrough) {
    Run(IDM_mnuEditFind);
    Window().LikeActiveColorChosen(true);
    const Texts names = Names();
    Texts visited;
    for (std::size_t time = 0; time < names.size(); ++time) {
        Run(IDM_mnuEditFindNext);
        visited.push_back(SelectedColor());
        TimePasses();
    }
    EXPECT_EQ(visited, names);
    EXPECT_EQ(Names(), names);
    EXPECT_EQ(program.find.swatch, MakeColorNumber(175, 43, 30));
}

TEST_F(FindCommandsTest, SwatchShowsTheActiveColorThatWasGoneTo) {
    Run(IDM_mnuEditFind);
    Type("gold");
    Window().RowChosen(0);
    TimePasses();
    EXPECT_EQ(program.find.swatch, MakeColorNumber(255, 206, 77));
}

TEST_F(FindCommandsTest, OperationIsNotDisturbed) {
    Run(IDM_mnuEditFind);
    Type("gold");
    int tried = 0;
    program.events.onEvents = [&] {
        ++tried;
        Window().RowChosen(0);
        Run(IDM_mnuEditFindNext);
    };
    Run(IDM_mnuSWXClearColorPart);
    ASSERT_GT(tried, 0);
    EXPECT_NE(SelectedColor(), "Gold");
    EXPECT_EQ(program.view.rowFocuses, 0);
}

TEST_F(FindCommandsTest, NameThatIsBeingTypedIsTakenBeforeAHitIsGoneTo) {
    Run(IDM_mnuEditFind);
    Type("enzian");
    program.view.openEdit = [this] { program.Main().list.RowLabelEdited(0, "typed"); };
    Window().RowChosen(0);
    EXPECT_EQ(SelectedColor(), "Enzianblau");
    Type("typed");
    EXPECT_EQ(Names(), Texts{"typed"});
}

TEST_F(FindCommandsTest, TextsAreThoseOfTheLanguageAlsoWhenItChanges) {
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.caption, "<200>");
    EXPECT_EQ(program.find.columns, (FindCaptions{"<201>", "<202>", "<203>", "<204>"}));
    Window().LikeActiveColorChosen(true);
    EXPECT_EQ(Column(4).front(), "0,00");
    program.profile.values[{"C:\\prog\\tntlng_de.ini", "Info", "Text.200"}] = "Farben suchen";
    program.profile.values[{"C:\\prog\\tntlng_de.ini", "Info", "Text.208"}] = "'";
    Run(IDM_mnuOptionsLngGerman);
    TimePasses();
    EXPECT_EQ(program.find.caption, "Farben suchen");
    EXPECT_EQ(Column(4).front(), "0'00");
}

TEST_F(FindCommandsTest, WindowIsAboveAllOthersWhileTheMainWindowIs) {
    Run(IDM_mnuEditFind);
    Run(IDM_mnuOptionsAlwaysOnTop);
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.topmost, (std::vector{true, false}));
}

TEST_F(FindCommandsTest, WindowStandsBesideTheMainOneWhenItOpensForTheFirstTime) {
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.bounds.left, 15360 - 6000) << "as far as there is room";
    EXPECT_EQ(program.find.bounds.top, program.mainWindow.bounds.top);
}

TEST_F(FindCommandsTest, PositionIsKeptWhenTheWindowClosesAndWhenTheProgramEnds) {
    Run(IDM_mnuEditFind);
    program.find.bounds = {1500, 1500, 7500, 4500};
    Window().FindClosing();
    program.find.bounds = {};
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.bounds.left, 1500);
    program.find.bounds.left = 3000;
    Run(IDM_mnuEditFind);
    EXPECT_EQ(program.find.bounds.left, 3000) << "it is open, and stays where it is";
    Run(IDM_mnuQuit);
    FakeProgram next;
    next.registry.values = program.registry.values;
    next.application.Start();
    next.Main().frame.RunCommand(IDM_mnuEditFind);
    EXPECT_EQ(next.find.bounds.left, 3000);
}

TEST_F(FindCommandsTest, PositionIsNotKeptOfAWindowThatWasNotOpened) {
    Run(IDM_mnuQuit);
    for (const auto& entry : program.registry.values)
        EXPECT_EQ(entry.first.find("frmFind"), std::string::npos);
}

// Slices of no time: a few thousand colors in each.
class SlicedFindTest : public FindCommandsTest {
protected:
    SlicedFindTest() : FindCommandsTest(std::chrono::milliseconds(0)) {
        std::string content = "\"D#Many=0D:1\"\r\n\"G#g=0DG1\"\r\n";
        for (int number = 1; number <= 9000; ++number)
            content += Line("0DG1", "many " + std::to_string(number), {number % 256, 1, 2});
        Open("C:\\many.tnt", content);
        Run(IDM_mnuEditFind);
    }
    void ChangeFirstRow() {
        program.Main().list.RowClicked(0);
        program.Main().editor.ValueTextChanged(1, "77");
        Run(IDM_mnuColorUpdateColor);
        ASSERT_EQ(program.Main().rows.CellText(0, 3), "77");
    }
};

TEST_F(SlicedFindTest, FirstHitsAreShownAtOnceAndTheOthersWithTheTicks) {
    Type("many");
    const int first = program.find.rowCount;
    EXPECT_GT(first, 0);
    EXPECT_LT(first, 9000);
    EXPECT_EQ(program.find.status, "1.995 von 9.005 Farben ...");
    EXPECT_EQ(program.find.pace, 10);
    Window().RowSelected(7);
    const int changes = program.find.rowChanges;
    for (int last = first; last < 9000; last = program.find.rowCount) {
        Window().Ticked();
        ASSERT_GT(program.find.rowCount, last);
    }
    EXPECT_EQ(program.find.rowChanges, changes) << "rows that are there stay as they are";
    EXPECT_EQ(program.find.status, "9.000 von 9.005 Farben");
    EXPECT_EQ(program.find.pace, 100);
}

TEST_F(SlicedFindTest, TypingOnBeginsAnew) {
    Type("many");
    Window().Ticked();
    Type("many 8999");
    EXPECT_EQ(program.find.rowCount, 0);
    for (int tick = 0; tick < 5; ++tick)
        Window().Ticked();
    EXPECT_EQ(Names(), Texts{"many 8999"});
    EXPECT_EQ(program.find.selectedRow, 0);
}

TEST_F(SlicedFindTest, NearestOfAllAreThereAtTheEnd) {
    program.Main().editor.ValueTextChanged(0, "200");
    program.Main().editor.ValueTextChanged(1, "1");
    program.Main().editor.ValueTextChanged(2, "2");
    Window().LikeActiveColorChosen(true);
    for (int tick = 0; tick < 5; ++tick)
        Window().Ticked();
    EXPECT_EQ(program.find.rowCount, 100);
    EXPECT_EQ(Names().front(), "many 200");
    EXPECT_EQ(program.find.status, "Die 100 ähnlichsten von 9.005 Farben");
}

TEST_F(SlicedFindTest, SelectedHitIsSelectedAgainWhenAChangeHasMadeTheSearchBeginAnew) {
    Type("many");
    for (int tick = 0; tick < 5; ++tick)
        Window().Ticked();
    Window().RowSelected(5000);
    ChangeFirstRow();
    for (int tick = 0; tick < 9; ++tick)
        Window().Ticked();
    EXPECT_EQ(program.find.rowCount, 9000);
    EXPECT_EQ(program.find.selectedRow, 5000);
}

TEST_F(SlicedFindTest, NextHitIsThatOfAllAlsoWhileASearchGoesOn) {
    Type("many");
    for (int tick = 0; tick < 5; ++tick)
        Window().Ticked();
    Window().RowSelected(5000);
    ChangeFirstRow();
    Run(IDM_mnuEditFindNext);
    EXPECT_EQ(program.find.selectedRow, 5001);
}

TEST_F(SlicedFindTest, SearchGoesOnBehindAWindowThatIsClosed) {
    Type("many");
    Window().FindClosing();
    EXPECT_EQ(program.find.pace, 10);
    for (int tick = 0; tick < 5; ++tick)
        Window().Ticked();
    EXPECT_EQ(program.find.rowCount, 9000);
    EXPECT_EQ(program.find.pace, 0);
}

} // namespace
