// Rules: Foreign palettes
#include "convert/LibraryPalette.h"

#include "common/RuntimeError.h"
#include "palettes/PaletteFormat.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/palettes/MadePalettes.h"

#include <gtest/gtest.h>

namespace {

class LibraryPaletteTest : public testing::Test {
protected:
    [[nodiscard]] std::string GroupName(const std::string& key) const {
        return library.Tree().At(key).text;
    }
    [[nodiscard]] ColorRecord Color(int index) const { return library.Colors().At(index); }

    ColorLibrary library;
    const NewLibrary added{.name = "Imported", .firstGroup = "Colors"};
};

TEST_F(LibraryPaletteTest, PaletteWithoutGroupsIsALibraryWithOne) {
    const Palette palette{"ignored", {}, {MadeEntry("a", {1, 2, 3}), MadeEntry("b", {4, 5, 6})}};
    EXPECT_EQ(AddPalette(library, palette, added), "0D");
    EXPECT_EQ(GroupName("0D"), "Imported");
    ASSERT_EQ(library.GetGroupInMainnode("0D"), std::vector<std::string>{"0DG1"});
    EXPECT_EQ(GroupName("0DG1"), "Colors");
    EXPECT_EQ(Color(1).name, "a");
    EXPECT_EQ(Color(1).altName, "a");
    EXPECT_EQ(Color(2).values, (ColorValueArray{4, 5, 6, 100, 100, 100, 30, 0, 0}));
    EXPECT_EQ(library.GetActiveMainnode(), "0D");
    EXPECT_FALSE(library.Tree().At("0D").file.has_value());
}

TEST_F(LibraryPaletteTest, ColorsWithoutAGroupAreInTheFirstOneAndEmptyGroupsStay) {
    const Palette palette{
        "", {"g", "empty"}, {MadeEntry("in", {1, 1, 1}, 0), MadeEntry("out", {2, 2, 2})}};
    AddPalette(library, palette, added);
    ASSERT_EQ(library.GetGroupInMainnode("0D").size(), 3U);
    EXPECT_EQ(GroupName("0DG1"), "Colors");
    EXPECT_EQ(GroupName("0DG2"), "g");
    EXPECT_EQ(GroupName("0DG3"), "empty");
    EXPECT_EQ(Color(library.GetColorIndexInGroup("0DG1").at(0)).name, "out");
    EXPECT_EQ(Color(library.GetColorIndexInGroup("0DG2").at(0)).name, "in");
}

TEST_F(LibraryPaletteTest, WithoutColorsThereIsAGroupAllTheSame) {
    AddPalette(library, {}, added);
    EXPECT_EQ(library.GetGroupInMainnode("0D").size(), 1U);
    EXPECT_EQ(library.Colors().UpperBound(), 0);
}

TEST_F(LibraryPaletteTest, OnlyValuesThatThePaletteDidNotHaveAreThoseOfTheMaterial) {
    Palette palette{"", {}, {MadeEntry("a", {1, 2, 3})}};
    palette.entries[0].Set(4, 0);
    palette.entries[0].Set(8, 77);
    NewLibrary other = added;
    other.material = {10, 20, 30, 40, 50, 60};
    AddPalette(library, palette, other);
    EXPECT_EQ(Color(1).values, (ColorValueArray{1, 2, 3, 10, 0, 30, 40, 50, 77}));
}

TEST_F(LibraryPaletteTest, PaletteIsFilledInWithTheMaterialThatItLacks) {
    Palette palette{"", {}, {MadeEntry("a", {1, 2, 3}), MadeEntry("b", {4, 5, 6})}};
    palette.entries[0].Set(4, 0);
    FillIn(palette, {10, 20, 30, 40, 50, 60});
    EXPECT_EQ(palette.entries[0].values, (ColorValueArray{1, 2, 3, 10, 0, 30, 40, 50, 60}));
    EXPECT_EQ(palette.entries[1].values, (ColorValueArray{4, 5, 6, 10, 20, 30, 40, 50, 60}));
    EXPECT_FALSE(LacksMaterial(palette));
}

TEST_F(LibraryPaletteTest, LibraryGoesToATableAndBackWithAllOfItsValues) {
    MadePalettes made(9);
    Palette palette = made.WithGroups();
    made.AddMaterials(palette);
    const std::string first = AddPalette(library, palette, added);
    const Palette written = PaletteOfLibrary(library, first).palette;
    const PaletteReading reading =
        ReadPalette(WritePalette(written, PaletteFormat::Table).bytes, FakeCodePage::Western());
    const std::string second = AddPalette(library, reading.palette, added);
    EXPECT_EQ(PaletteOfLibrary(library, second).palette, written);
    EXPECT_EQ(written.entries.size(), palette.entries.size());
    EXPECT_EQ(written.name, "Imported");
}

TEST_F(LibraryPaletteTest, ValuesBeyondTheirRangeAreBroughtIntoItAndCounted) {
    AddPalette(library, {"", {}, {MadeEntry("a", {1, 2, 3}), MadeEntry("b", {4, 5, 6})}}, added);
    library.Colors().SetValues(1, {-5, 300, 255, 101, 100, 0, -1, 32767, 7});
    const LibraryAsPalette made = PaletteOfLibrary(library, "0D");
    EXPECT_EQ(made.changedColors, 1U);
    EXPECT_EQ(made.palette.entries[0].values,
              (ColorValueArray{0, 255, 255, 100, 100, 0, 0, 100, 7}));
}

TEST_F(LibraryPaletteTest, ColorWithoutANameIsCalledByItsNumbers) {
    AddPalette(library, {"", {}, {MadeEntry("", {1, 171, 255})}}, added);
    EXPECT_EQ(Color(1).name, "#01ABFF");
}

TEST_F(LibraryPaletteTest, GroupsComeBehindThoseOfALibrary) {
    AddPalette(library, {"", {}, {MadeEntry("a", {1, 2, 3})}}, added);
    const Palette palette{"", {"g", "h"}, {MadeEntry("b", {1, 1, 1}, 1)}};
    EXPECT_EQ(AddPaletteGroups(library, "0D", palette, {.firstGroup = "unused"}), "0DG2");
    EXPECT_EQ(library.GetGroupInMainnode("0D"), (std::vector<std::string>{"0DG1", "0DG2", "0DG3"}));
    EXPECT_EQ(GroupName("0DG3"), "h");
    EXPECT_EQ(library.GetColorCountInGroup("0DG3"), 1);
}

TEST_F(LibraryPaletteTest, GroupsAreRefusedAsAWholeWhenOneOfTheirNumbersIsTaken) {
    const std::string key = library.NewMainNode("L");
    for (const char* name : {"1", "2", "3"})
        library.NewGroupNode(key, name);
    library.Tree().Remove("0DG1");
    library.Tree().Remove("0DG2"); // 3 is left, and would come second
    EXPECT_TRUE(library.AreNextGroupNumbersFree("0D", 1));
    EXPECT_THROW(AddPaletteGroups(library, "0D", {"", {"g", "h"}, {}}, {}), RuntimeError);
    EXPECT_EQ(library.GetGroupInMainnode("0D"), std::vector<std::string>{"0DG3"});
}

TEST_F(LibraryPaletteTest, GroupAloneIsAPaletteOfItsNameWithoutGroups) {
    const Palette palette{
        "", {"g", "h"}, {MadeEntry("a", {1, 2, 3}, 0), MadeEntry("b", {4, 5, 6}, 1)}};
    AddPalette(library, palette, added);
    const Palette group = PaletteOfGroup(library, "0DG2").palette;
    EXPECT_EQ(group.name, "h");
    EXPECT_TRUE(group.groups.empty());
    ASSERT_EQ(group.entries.size(), 1U);
    EXPECT_EQ(group.entries[0].name, "b");
    EXPECT_EQ(group.entries[0].group, kNoGroup);
    EXPECT_THROW(static_cast<void>(PaletteOfGroup(library, "7DG1")), RuntimeError);
}

TEST_F(LibraryPaletteTest, MaterialIsLackedByAColorWithoutOneOfItsSixValues) {
    Palette palette{"", {}, {MadeEntry("a", {1, 2, 3})}};
    EXPECT_FALSE(LacksMaterial({}));
    for (std::size_t value = 3; value < kColorValueCount; ++value) {
        EXPECT_TRUE(LacksMaterial(palette)) << value;
        palette.entries[0].Set(value, 1);
    }
    EXPECT_FALSE(LacksMaterial(palette));
}

TEST_F(LibraryPaletteTest, LibraryThatIsNotThereIsAnError) {
    EXPECT_THROW(static_cast<void>(PaletteOfLibrary(library, "7D")), RuntimeError);
}

} // namespace
