// Rules: Editing commands
#include "mainwindow/ColorDrag.h"

#include "resources/controls.h"
#include "tests/fakes/FakeProgram.h"

#include <gtest/gtest.h>

namespace {

using Message = FakePrompts::Message;
using Names = std::vector<std::string>;

DragPoint OverList() {
    DragPoint at;
    at.left = 4000;
    at.top = 900;
    at.isOverList = true;
    return at;
}

DragPoint OverNode(const std::string& key) {
    DragPoint at;
    at.left = 300;
    at.top = 600;
    at.node = key;
    return at;
}

DragPoint AtEdge(TreeEdge edge) {
    DragPoint at;
    at.edge = edge;
    return at;
}

const DragPoint kNowhere{};

constexpr HeldKeys kNoKey{};
constexpr HeldKeys kCtrl{false, true, false};

// The libraries "Lib" with the groups "g" (colors a, b, c) and "h" (color x), and "Other" with
// the group "o".  The group "g" is shown, its color b is selected.
class ColorDragTest : public testing::Test {
protected:
    ColorDragTest() {
        program.files.contents["C:\\a.tnt"] =
            "\"D#Lib=0D:6\"\r\n\"G#g=0DG1\"\r\n" + Color("a", "0DG1") + Color("b", "0DG1") +
            Color("c", "0DG1") + "\"G#h=0DG2\"\r\n" + Color("x", "0DG2");
        program.registry.SetText(FakeProgram::Setting("DefaultColorFile"), "C:\\a.tnt");
        program.application.Start();
        program.prompts.typed = {"Other", "o", ""};
        program.Main().frame.RunCommand(IDM_mnuColorNewMainNode);
        program.Main().tree.NodeClicked("0DG1");
        program.Main().list.RowClicked(1);
        program.prompts.messages.clear();
    }

    static std::string Color(const std::string& name, const std::string& group) {
        std::string line = "\"E#" + name + "=" + group + ":" + name;
        for (int value = 1; value <= 9; ++value)
            line += "\xF7" + std::to_string(value);
        return line + "\"\r\n";
    }
    void Drag(const HeldKeys& keys, const DragPoint& to) {
        program.Main().drag.ListPressed();
        ASSERT_TRUE(program.Main().drag.DragStarted(keys, OverList()));
        program.Main().drag.DragMoved(to);
        program.Main().drag.DragDropped(to);
    }
    [[nodiscard]] Names ShownNames() {
        Names names;
        for (int row = 0; row < program.view.rowCount; ++row)
            names.push_back(program.Main().rows.CellText(row, 1));
        return names;
    }
    [[nodiscard]] Names NamesIn(const std::string& group) {
        program.Main().tree.NodeClicked(group);
        return ShownNames();
    }

    FakeProgram program;
};

TEST_F(ColorDragTest, MoveTakesTheColorOutOfItsGroupAndPutsItIntoTheOther) {
    Drag(kNoKey, OverNode("0DG2"));
    EXPECT_TRUE(program.prompts.messages.empty()) << "a move never asks";
    EXPECT_EQ(program.view.selectedNode, "0DG2");
    EXPECT_EQ(ShownNames(), (Names{"x", "b"}));
    EXPECT_EQ(program.view.selectedRow, 1) << "the new color is selected";
    EXPECT_EQ(program.view.colorName, "b");
    EXPECT_EQ(NamesIn("0DG1"), (Names{"a", "c"}));
}

TEST_F(ColorDragTest, CopyLeavesTheColorInItsGroup) {
    Drag(kCtrl, OverNode("0DG2"));
    EXPECT_EQ(ShownNames(), (Names{"x", "b"}));
    EXPECT_EQ(NamesIn("0DG1"), (Names{"a", "b", "c"}));
}

TEST_F(ColorDragTest, OnlyCtrlAloneCopies) {
    const auto modeWith = [this](bool shift, bool ctrl, bool alt) {
        EXPECT_TRUE(program.Main().drag.DragStarted({shift, ctrl, alt}, OverList()));
        program.Main().drag.DragCancelled();
        return program.view.dragPicture;
    };
    EXPECT_EQ(modeWith(false, true, false), DragMode::Copy);
    EXPECT_EQ(modeWith(false, false, false), DragMode::Move);
    EXPECT_EQ(modeWith(true, false, false), DragMode::Move);
    EXPECT_EQ(modeWith(true, true, false), DragMode::Move);
    EXPECT_EQ(modeWith(false, true, true), DragMode::Move);
}

TEST_F(ColorDragTest, MovedColorKeepsItsNineValuesAndStaysOnTheClipboard) {
    Drag(kNoKey, OverNode("1DG1"));
    for (int value = 1; value <= 9; ++value)
        EXPECT_EQ(program.Main().rows.CellText(0, 1 + value), std::to_string(value));
    EXPECT_EQ(program.clipboard.text, "E#b=0DG1:b,1,2,3,4,5,6,7,8,9");
    program.Main().frame.RunCommand(IDM_mnuColorPaste);
    EXPECT_EQ(ShownNames(), (Names{"b", "b"})) << "a second paste makes a second copy";
}

TEST_F(ColorDragTest, MoveThatWouldRenameTheColorTellsSoAndMovesNothing) {
    program.Main().list.RowLabelEdited(1, "a=b");
    Drag(kNoKey, OverNode("0DG2"));
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<5> CLIPBOARD", 48, "<98>"}}));
    EXPECT_EQ(program.view.selectedNode, "0DG1");
    EXPECT_EQ(ShownNames(), (Names{"a", "a=b", "c"}));
    EXPECT_EQ(NamesIn("0DG2"), Names{"x"});
}

TEST_F(ColorDragTest, MoveIntoItsOwnGroupPutsTheColorAtItsEnd) {
    Drag(kNoKey, OverNode("0DG1"));
    EXPECT_EQ(ShownNames(), (Names{"a", "c", "b"}));
}

TEST_F(ColorDragTest, DropOnALibraryShowsANoteAndMovesNothing) {
    Drag(kNoKey, OverNode("1D"));
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<7>", 64, "<23>"}}));
    EXPECT_EQ(program.view.selectedNode, "0DG1");
    EXPECT_EQ(ShownNames(), (Names{"a", "b", "c"}));
    EXPECT_FALSE(program.clipboard.text);
}

TEST_F(ColorDragTest, DropBesideTheNodesChangesNothing) {
    Drag(kNoKey, kNowhere);
    EXPECT_TRUE(program.prompts.messages.empty());
    EXPECT_EQ(program.view.selectedNode, "0DG1");
    EXPECT_EQ(ShownNames(), (Names{"a", "b", "c"}));
    EXPECT_FALSE(program.clipboard.text);
}

TEST_F(ColorDragTest, DropOnTheListChangesNothing) {
    Drag(kNoKey, OverList());
    EXPECT_EQ(ShownNames(), (Names{"a", "b", "c"}));
    EXPECT_FALSE(program.clipboard.text);
}

TEST_F(ColorDragTest, LabelEditIsRefusedWhileTheColorIsDragged) {
    EXPECT_TRUE(program.Main().list.MayEditRow());
    ASSERT_TRUE(program.Main().drag.DragStarted(kCtrl, OverList()));
    EXPECT_FALSE(program.Main().list.MayEditRow());
    program.Main().list.RowEditRequested();
    EXPECT_EQ(program.view.editedRow, -1);
    program.Main().drag.DragDropped(OverList());
    EXPECT_TRUE(program.Main().list.MayEditRow());
}

TEST_F(ColorDragTest, DropBesideTheNodesLeavesTheModeUntilTheListIsPressed) {
    Drag(kNoKey, kNowhere);
    EXPECT_FALSE(program.Main().list.MayEditRow());
    program.Main().drag.ListPressed();
    EXPECT_TRUE(program.Main().list.MayEditRow());
}

TEST_F(ColorDragTest, EveryDropOnANodeEndsTheDrag) {
    for (const char* node : {"1D", "0DG2"}) {
        Drag(kCtrl, OverNode(node));
        EXPECT_TRUE(program.Main().list.MayEditRow()) << node;
        EXPECT_FALSE(program.view.isDragShown) << node;
        EXPECT_EQ(program.view.dropNode, "") << node;
    }
}

TEST_F(ColorDragTest, CancelledDragDropsNothingAndEndsIt) {
    ASSERT_TRUE(program.Main().drag.DragStarted(kNoKey, OverList()));
    program.Main().drag.DragMoved(OverNode("0DG2"));
    program.Main().drag.DragCancelled();
    EXPECT_FALSE(program.view.isDragShown);
    EXPECT_EQ(program.view.dropNode, "");
    EXPECT_TRUE(program.Main().list.MayEditRow());
    program.Main().drag.DragDropped(OverNode("0DG2"));
    EXPECT_EQ(NamesIn("0DG2"), (Names{"x"}));
}

TEST_F(ColorDragTest, CommandGivesTheDragUp) {
    ASSERT_TRUE(program.Main().drag.DragStarted(kNoKey, OverList()));
    program.Main().frame.RunCommand(IDM_mnuColorDelColor);
    program.Main().drag.DragDropped(OverNode("0DG2"));
    EXPECT_EQ(NamesIn("0DG1"), (Names{"a", "c"})) << "deleted by the command alone";
    EXPECT_EQ(NamesIn("0DG2"), (Names{"x"}));
}

TEST_F(ColorDragTest, EmptyListStartsNoDrag) {
    program.Main().tree.NodeClicked("1DG1");
    EXPECT_FALSE(program.Main().drag.DragStarted(kNoKey, OverList()));
    EXPECT_FALSE(program.view.isDragShown);
}

TEST_F(ColorDragTest, LabelFollowsThePointer) {
    ASSERT_TRUE(program.Main().drag.DragStarted(kNoKey, OverList()));
    EXPECT_EQ(program.view.dragLeft, 4000);
    EXPECT_EQ(program.view.dragTop, 900);
    program.Main().drag.DragMoved(OverNode("0DG2"));
    EXPECT_EQ(program.view.dragLeft, 300);
    EXPECT_EQ(program.view.dragTop, 600);
}

TEST_F(ColorDragTest, PointerShowsTheModeWhereADropIsPossible) {
    for (const auto& [keys, mode] :
         {std::pair{kNoKey, DragMode::Move}, std::pair{kCtrl, DragMode::Copy}}) {
        ASSERT_TRUE(program.Main().drag.DragStarted(keys, OverList()));
        EXPECT_EQ(program.view.dragPicture, mode);
        program.Main().drag.DragMoved(OverNode("0DG2"));
        EXPECT_EQ(program.view.dragPicture, mode);
        for (const DragPoint& refusing : {OverNode("1D"), kNowhere}) {
            program.Main().drag.DragMoved(refusing);
            EXPECT_EQ(program.view.dragPicture, DragMode::None);
        }
        program.Main().drag.DragCancelled();
    }
}

TEST_F(ColorDragTest, OnlyAGroupIsMarkedAsTheTarget) {
    ASSERT_TRUE(program.Main().drag.DragStarted(kNoKey, OverList()));
    program.Main().drag.DragMoved(OverNode("0DG2"));
    EXPECT_EQ(program.view.dropNode, "0DG2");
    program.Main().drag.DragMoved(OverNode("1D"));
    EXPECT_EQ(program.view.dropNode, "");
}

TEST_F(ColorDragTest, LibraryOnWhichThePointerRestsShowsItsGroups) {
    program.view.expanded.clear();
    ASSERT_TRUE(program.Main().drag.DragStarted(kNoKey, OverList()));
    const auto tick = [&](const std::string& node, int times) {
        for (int time = 0; time < times; ++time)
            program.Main().drag.DragTicked(OverNode(node));
    };
    tick("1D", ColorDrag::kTicksToExpand - 1);
    tick("0D", 1);
    tick("1D", ColorDrag::kTicksToExpand - 1);
    EXPECT_TRUE(program.view.expanded.empty()) << "it left in between";
    tick("1D", 1);
    EXPECT_EQ(program.view.expanded, (std::map<std::string, bool>{{"1D", true}}));
    program.view.expanded.clear();
    tick("1D", 3 * ColorDrag::kTicksToExpand);
    EXPECT_TRUE(program.view.expanded.empty()) << "once is enough";
}

TEST_F(ColorDragTest, TreeScrollsWhileThePointerIsNearItsEdge) {
    ASSERT_TRUE(program.Main().drag.DragStarted(kNoKey, OverList()));
    program.Main().drag.DragTicked(AtEdge(TreeEdge::Top));
    program.Main().drag.DragTicked(AtEdge(TreeEdge::None));
    program.Main().drag.DragTicked(AtEdge(TreeEdge::Bottom));
    EXPECT_EQ(program.view.scrolls, (std::vector<TreeEdge>{TreeEdge::Top, TreeEdge::Bottom}));
}

TEST_F(ColorDragTest, TicksAndMovesAfterTheEndDoNothing) {
    Drag(kCtrl, OverNode("0DG2"));
    program.Main().drag.DragMoved(OverNode("0DG1"));
    for (int time = 0; time < 2 * ColorDrag::kTicksToExpand; ++time)
        program.Main().drag.DragTicked(AtEdge(TreeEdge::Top));
    EXPECT_FALSE(program.view.isDragShown);
    EXPECT_EQ(program.view.dropNode, "");
    EXPECT_TRUE(program.view.scrolls.empty());
}

TEST_F(ColorDragTest, MoveWithTheClipboardHeldLosesNothingAndEndsTheDrag) {
    program.clipboard.isBusy = true;
    program.Main().drag.ListPressed();
    ASSERT_TRUE(program.Main().drag.DragStarted(kNoKey, OverList()));
    EXPECT_THROW(program.Main().drag.DragDropped(OverNode("0DG2")), RuntimeError);
    EXPECT_TRUE(program.Main().list.MayEditRow());
    EXPECT_EQ(ShownNames(), (Names{"a", "b", "c"}));
    EXPECT_EQ(NamesIn("0DG2"), (Names{"x"}));
}

TEST_F(ColorDragTest, MoveArrivesAlsoWhenTheClipboardChangesMeanwhile) {
    program.clipboard.textAfterReading = "of another program";
    Drag(kNoKey, OverNode("0DG2"));
    EXPECT_EQ(program.clipboard.text, "of another program");
    EXPECT_EQ(ShownNames(), (Names{"x", "b"}));
}

TEST_F(ColorDragTest, ColorThatAPasteWouldRefuseStaysWhereItIs) {
    program.Main().list.RowLabelEdited(1, "light, warm");
    Drag(kNoKey, OverNode("0DG2"));
    EXPECT_EQ(program.prompts.messages, (std::vector<Message>{{"<5> CLIPBOARD", 48, "<98>"}}));
    EXPECT_EQ(NamesIn("0DG1"), (Names{"a", "light, warm", "c"}));
    EXPECT_EQ(NamesIn("0DG2"), (Names{"x"}));
}

} // namespace
