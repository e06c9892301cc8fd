// Rules: Tree and list views
#include "mainwindow/LibraryPanes.h"

#include "tests/fakes/LibraryOnFakes.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

// A library with the groups "one" (colors b, A, c) and "two" (none).
class LibraryPanesTest : public testing::Test, protected LibraryOnFakes {
protected:
    LibraryPanesTest() {
        library.Tree().Observe(&view);
        editor.ShowInitialColor();
        library.NewMainNode("Lib");
        library.NewGroupNode("0D", "one");
        library.NewGroupNode("0D", "two");
        AddColor("b", 20);
        AddColor("A", 100);
        AddColor("c", 3);
    }
    ~LibraryPanesTest() override { library.Tree().Observe(nullptr); }

    void AddColor(const std::string& name, std::int16_t red) {
        const std::string key = "0DG1E" + std::to_string(library.Colors().UpperBound() + 1);
        library.Colors().Append({name, key, "0DG1", false, {red, 1, 2, 3, 4, 5, 6, 7, 8}, name});
    }
    [[nodiscard]] Names ShownNames() const {
        Names names;
        for (int row = 0; row < list.RowCount(); ++row)
            names.push_back(list.CellText(row, 1));
        return names;
    }
};

TEST_F(LibraryPanesTest, ClickedLibraryShowsTheColorsOfItsFirstGroup) {
    panes.NodeClicked("0D");
    EXPECT_EQ(ShownNames(), (Names{"b", "A", "c"}));
    EXPECT_EQ(library.Tree().Selected(), "0D") << "the clicked node stays selected";
    EXPECT_EQ(view.rowCount, 3);
}

TEST_F(LibraryPanesTest, FirstColorIsSelectedMadeVisibleAndShownInTheEditor) {
    panes.NodeClicked("0DG1");
    EXPECT_EQ(view.selectedRow, 0);
    EXPECT_EQ(view.visibleRow, 0);
    EXPECT_EQ(view.colorName, "b");
    EXPECT_EQ(view.valueTexts[0], "20");
}

TEST_F(LibraryPanesTest, RowsShowNameAndNineValues) {
    panes.NodeClicked("0DG1");
    Names cells;
    for (int column = 1; column <= 11; ++column)
        cells.push_back(list.CellText(1, column));
    EXPECT_EQ(cells, (Names{"A", "100", "1", "2", "3", "4", "5", "6", "7", "8", ""}));
}

TEST_F(LibraryPanesTest, RowsHaveTheValuesOfTheirColorsUntilTheseAreGone) {
    panes.NodeClicked("0DG1");
    EXPECT_EQ(list.RowValues(1), (ColorValueArray{100, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(list.RowValues(-1), std::nullopt);
    EXPECT_EQ(list.RowValues(3), std::nullopt);
    library.Colors().SetValues(2, {9, 8, 7, 6, 5, 4, 3, 2, 1});
    EXPECT_EQ(list.RowValues(1), (ColorValueArray{9, 8, 7, 6, 5, 4, 3, 2, 1}));
    library.Colors().Erase(2);
    EXPECT_EQ(list.RowValues(1), std::nullopt);
}

TEST_F(LibraryPanesTest, ClickedColorIsRememberedAndSelectedWhenTheGroupIsShownAgain) {
    panes.NodeClicked("0DG1");
    panes.RowClicked(2);
    EXPECT_EQ(view.colorName, "c");
    EXPECT_EQ(library.Tree().At("0DG1").lastColor, "0DG1E3");
    panes.NodeClicked("0DG2");
    panes.NodeClicked("0DG1");
    EXPECT_EQ(view.selectedRow, 2);
    EXPECT_EQ(view.colorName, "c");
}

TEST_F(LibraryPanesTest, RememberedColorThatIsGoneLeavesTheFirstSelected) {
    library.Tree().RememberColor("0DG1", "0DG1E99");
    panes.NodeClicked("0DG1");
    EXPECT_EQ(view.selectedRow, 0);
}

TEST_F(LibraryPanesTest, SelectKeyIsStoredInTheGroupAndSelected) {
    panes.ShowColorNodes("0DG1", "0DG1E2");
    EXPECT_EQ(library.Tree().At("0DG1").lastColor, "0DG1E2");
    EXPECT_EQ(view.selectedRow, 1);
}

TEST_F(LibraryPanesTest, EmptyGroupEmptiesTheListAndTheEditorKeepsItsColor) {
    panes.NodeClicked("0DG1");
    panes.NodeClicked("0DG2");
    EXPECT_EQ(view.rowCount, 0);
    EXPECT_EQ(view.colorName, "b");
    EXPECT_EQ(list.SelectedKey(), "");
}

TEST_F(LibraryPanesTest, LibraryWithoutGroupsShowsAnEmptyList) {
    panes.NodeClicked("0DG1");
    library.NewMainNode("Empty");
    panes.NodeClicked("1D");
    EXPECT_EQ(view.rowCount, 0);
}

TEST_F(LibraryPanesTest, WithoutASelectedNodeTheListIsEmptyAndNothingIsAsked) {
    panes.NodeClicked("0DG1");
    ASSERT_EQ(view.rowCount, 3);
    library.Tree().Remove("0D");
    panes.ShowColorNodes();
    EXPECT_TRUE(prompts.questions.empty());
    EXPECT_EQ(view.rowCount, 0);
}

TEST_F(LibraryPanesTest, RenamedColorTakesTheTextAsTypedInBothNames) {
    panes.NodeClicked("0DG1");
    panes.RowLabelEdited(0, "");
    EXPECT_EQ(library.Colors().At(1).name, "");
    EXPECT_EQ(library.Colors().At(1).altName, "");
    EXPECT_EQ(view.colorName, "") << "the editor's name label follows";
}

TEST_F(LibraryPanesTest, RenamedColorLeavesTheNameOfAnotherColorInTheEditor) {
    panes.NodeClicked("0DG1");
    ColorRecord picked;
    picked.name = "Neuer Farbwert";
    editor.ShowColorFromSolidWorks(picked);
    panes.RowLabelEdited(0, "renamed");
    EXPECT_EQ(view.colorName, "Neuer Farbwert");
    EXPECT_EQ(library.Colors().At(1).name, "renamed");
}

TEST_F(LibraryPanesTest, SelectKeyIsNotRememberedInAGroupWithoutColors) {
    panes.ShowColorNodes("0DG2", "0DG2E1");
    EXPECT_EQ(library.Tree().At("0DG2").lastColor, "");
}

TEST_F(LibraryPanesTest, UpdateWithATextThatIsNoNumberChangesNothing) {
    panes.NodeClicked("0DG1");
    editor.SetName("other");
    EXPECT_THROW(editor.SetText(4, "."), RuntimeError);
    EXPECT_THROW(panes.UpdateFromColorPreview(), RuntimeError);
    EXPECT_EQ(library.Colors().At(1).name, "b");
    EXPECT_EQ(library.Colors().At(1).values[0], 20);
    EXPECT_EQ(list.CellText(0, 1), "b");
}

TEST_F(LibraryPanesTest, RenamedNodeIsWhatIsSaved) {
    panes.NodeLabelEdited("0DG1", "renamed");
    EXPECT_EQ(library.Tree().At("0DG1").text, "renamed");
    EXPECT_EQ(view.nodes.at("0DG1"), "renamed");
}

TEST_F(LibraryPanesTest, UpdateWritesNameAndValuesOfTheEditorIntoTheSelectedColor) {
    panes.NodeClicked("0DG1");
    panes.RowClicked(1);
    editor.SetName("other");
    editor.SetText(0, "77");
    EXPECT_EQ(library.Colors().At(2).values[0], 100) << "not before the command";
    panes.UpdateFromColorPreview();
    EXPECT_EQ(library.Colors().At(2).name, "other");
    EXPECT_EQ(library.Colors().At(2).altName, "A") << "the second name stays";
    EXPECT_EQ(library.Colors().At(2).values[0], 77);
    EXPECT_EQ(view.selectedRow, 1);
    EXPECT_EQ(list.CellText(1, 2), "77");
}

TEST_F(LibraryPanesTest, UpdateWithoutASelectedColorDoesNothing) {
    panes.NodeClicked("0DG2");
    panes.UpdateFromColorPreview();
    EXPECT_TRUE(prompts.messages.empty());
    EXPECT_EQ(library.Colors().At(1).values[0], 20);
}

TEST_F(LibraryPanesTest, EditsThatAreNotWrittenBackAreLost) {
    panes.NodeClicked("0DG1");
    editor.SetText(0, "77");
    panes.RowClicked(1);
    panes.RowClicked(0);
    EXPECT_EQ(view.valueTexts[0], "20");
}

TEST_F(LibraryPanesTest, OtherColumnSortsAscendingThenDescendingThenAscendingAgain) {
    panes.NodeClicked("0DG1");
    list.SortByColumn(2); // red: 20, 100, 3 as text
    EXPECT_EQ(ShownNames(), (Names{"A", "b", "c"})) << "\"100\" comes before \"20\"";
    list.SortByColumn(2);
    EXPECT_EQ(ShownNames(), (Names{"c", "b", "A"}));
    list.SortByColumn(2);
    EXPECT_EQ(ShownNames(), (Names{"A", "b", "c"}));
}

TEST_F(LibraryPanesTest, NameIsTheSortKeyFromTheStartSoItsFirstClickFlipsTheOrder) {
    panes.NodeClicked("0DG1");
    list.SortByColumn(1);
    EXPECT_EQ(ShownNames(), (Names{"c", "b", "A"}));
}

TEST_F(LibraryPanesTest, SelectionStaysOnItsColorWhenTheListIsSorted) {
    panes.NodeClicked("0DG1");
    panes.RowClicked(0); // b
    list.SortByColumn(2);
    EXPECT_EQ(view.selectedRow, 1);
    EXPECT_EQ(list.SelectedKey(), "0DG1E1");
}

TEST_F(LibraryPanesTest, SortingStaysSwitchedOnForTheNextGroup) {
    panes.NodeClicked("0DG1");
    list.SortByColumn(2);
    panes.NodeClicked("0DG2");
    panes.NodeClicked("0DG1");
    EXPECT_EQ(ShownNames(), (Names{"A", "b", "c"}));
}

TEST_F(LibraryPanesTest, EachTextIsPreparedForSortingOnce) {
    for (int color = 0; color < 97; ++color)
        AddColor("n" + std::to_string(color * 37 % 97), 1);
    panes.NodeClicked("0DG1");
    list.SortByColumn(2);
    EXPECT_EQ(collation.keysMade, 100);
}

TEST_F(LibraryPanesTest, RowsWithEqualTextsKeepTheirOrderInBothDirections) {
    AddColor("d", 20);
    AddColor("e", 20);
    panes.NodeClicked("0DG1");
    list.SortByColumn(2);
    EXPECT_EQ(ShownNames(), (Names{"A", "b", "d", "e", "c"}));
    list.SortByColumn(2);
    EXPECT_EQ(ShownNames(), (Names{"c", "b", "d", "e", "A"}));
}

TEST_F(LibraryPanesTest, RowsWithEqualTextsStandAsInTheLibraryWhateverSortedThemBefore) {
    AddColor("e", 20);
    AddColor("d", 20);
    panes.NodeClicked("0DG1");
    list.SortByColumn(1);
    list.SortByColumn(2);
    const Names names = ShownNames();
    EXPECT_EQ(names, (Names{"A", "b", "e", "d", "c"}));
    panes.NodeClicked("0DG1");
    EXPECT_EQ(ShownNames(), names);
}

TEST_F(LibraryPanesTest, ColumnsAreSharesOfTheListsWidth) {
    view.listWidth = 6000;
    list.AddColumns();
    ASSERT_EQ(view.columns.size(), 10U);
    EXPECT_EQ(view.columns[0].caption, "Name");
    EXPECT_EQ(view.columns[0].key, "Name");
    EXPECT_EQ(view.columns[0].width, 1440);
    const Names captions{"R", "G", "B", "Amb", "Dif", "Spe", "Shi", "Tra", "Emi"};
    const Names keys{"red",      "green",     "blue",         "Ambient", "Diffuse",
                     "Specular", "Shininess", "Transparency", "Emission"};
    for (std::size_t column = 0; column < 9; ++column) {
        EXPECT_EQ(view.columns[column + 1].caption, captions[column]);
        EXPECT_EQ(view.columns[column + 1].key, keys[column]);
        EXPECT_EQ(view.columns[column + 1].width, 500);
    }
}

TEST_F(LibraryPanesTest, WidthsOfColumnsAreRoundedToWholeNumbers) {
    view.listWidth = 6010;
    list.AddColumns();
    EXPECT_EQ(view.columns[0].width, 1442);
    EXPECT_EQ(view.columns[1].width, 501);
}

TEST_F(LibraryPanesTest, FirstRowOfASortedListIsSelectedWhereNothingIsRemembered) {
    list.SortByColumn(2);
    panes.NodeClicked("0DG1");
    EXPECT_EQ(ShownNames(), (Names{"A", "b", "c"}));
    EXPECT_EQ(view.selectedRow, 0);
    EXPECT_EQ(view.colorName, "A");
}

TEST_F(LibraryPanesTest, TypedLettersFindTheNextNameFromTheStartRowOnwards) {
    panes.NodeClicked("0DG1");
    EXPECT_EQ(list.FindRow("a", 0), 1);
    EXPECT_EQ(list.FindRow("B", 1), 0) << "wraps at the end";
    EXPECT_EQ(list.FindRow("A", -1), 1) << "from the first row";
    EXPECT_EQ(list.FindRow("x", 0), -1);
}

TEST_F(LibraryPanesTest, TypedLettersFindNamesInAnyLetterCaseAccentsIncluded) {
    AddColor("\xC3\x84rmel", 1);
    AddColor("S\xC3\x84ule", 2);
    panes.NodeClicked("0DG1");
    EXPECT_EQ(list.FindRow("\xC3\xA4r", 0), 3);
    EXPECT_EQ(list.FindRow("\xC3\x84RM", 0), 3);
    EXPECT_EQ(list.FindRow("s\xC3\xA4U", 0), 4);
    EXPECT_EQ(list.FindRow("s\xC3\xB6", 0), -1);
}

TEST_F(LibraryPanesTest, NamesThatDifferInAPlainLetterAreFoundOutWithoutThePlatform) {
    panes.NodeClicked("0DG1");
    EXPECT_EQ(list.FindRow("bx", 0), -1);
    EXPECT_EQ(collation.textsLowered, 1) << "what was typed";
}

} // namespace
