// Rules: Foreign palettes
#include "palettes/GimpPaletteFile.h"

#include "palettes/PaletteLimits.h"
#include "tests/palettes/MadePalettes.h"

#include <gtest/gtest.h>

namespace {

using Met = PaletteFaults::Met;

PaletteContent Read(const std::string& text) {
    return GimpPaletteFile::Read(text);
}

TEST(GimpPaletteFile, NewFormatHasANameAndColumns) {
    const PaletteContent content = Read("GIMP Palette\n"
                                        "Name: Werkstatt Grün \n"
                                        "Columns: 4\n"
                                        "# made by hand\n"
                                        "255 204  77\tSonne\n"
                                        "  0   0   0 \t Schwarz wie 1 Nacht  \n"
                                        "\n"
                                        "12 34 56\n");
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(content.palette, (Palette{"Werkstatt Grün",
                                        {},
                                        {MadeEntry("Sonne", {255, 204, 77}),
                                         MadeEntry("Schwarz wie 1 Nacht", {0, 0, 0}),
                                         MadeEntry("", {12, 34, 56})}}));
}

TEST(GimpPaletteFile, OldFormatBeginsWithItsColors) {
    const PaletteContent content = Read("GIMP Palette\n1 2 3 First\n4 5 6 Name: second");
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(
        content.palette,
        (Palette{"", {}, {MadeEntry("First", {1, 2, 3}), MadeEntry("Name: second", {4, 5, 6})}}));
}

TEST(GimpPaletteFile, LinesMayEndAsOnAnyPlatform) {
    for (const std::string end : {"\n", "\r\n", "\r"}) {
        const PaletteContent content =
            Read("GIMP Palette" + end + "Name: n" + end + "1 2 3 a" + end + "4 5 6 b" + end);
        EXPECT_TRUE(content.faults.IsNothing());
        EXPECT_EQ(content.palette,
                  (Palette{"n", {}, {MadeEntry("a", {1, 2, 3}), MadeEntry("b", {4, 5, 6})}}));
    }
}

TEST(GimpPaletteFile, LinesThatAreNoColorAreCountedAndLeftOut) {
    const PaletteContent content = Read("GIMP Palette\n1 2 3 a\nrubbish\n1 2\n1 2 x b\n1 2 3x c\n"
                                        "99999999999 1 2 d\n7 8 9 e\nName: late\n");
    EXPECT_EQ(content.faults.Of(PaletteFault::Unreadable), (Met{6, 3}));
    EXPECT_EQ(content.palette.entries,
              (std::vector{MadeEntry("a", {1, 2, 3}), MadeEntry("e", {7, 8, 9})}));
    EXPECT_EQ(content.palette.name, "");
}

TEST(GimpPaletteFile, ValuesBeyondTheirRangeAreCountedAndLeftOut) {
    const PaletteContent content = Read("GIMP Palette\n256 0 0\n0 -1 0\n0 0 255 Blue\n");
    EXPECT_EQ(content.faults.Of(PaletteFault::OutOfRange), (Met{2, 2}));
    EXPECT_EQ(content.palette.entries, (std::vector{MadeEntry("Blue", {0, 0, 255})}));
}

TEST(GimpPaletteFile, LongNamesAreCutBetweenCharacters) {
    std::string name(PaletteLimits::kLongestName - 1, 'n');
    const PaletteContent content =
        Read("GIMP Palette\n1 2 3 " + name + "üü\n1 2 3 " + name + "n\n");
    EXPECT_EQ(content.palette.entries[0].name, name);
    EXPECT_EQ(content.palette.entries[1].name, name + "n");
    EXPECT_EQ(content.faults.Of(PaletteFault::NameCut), (Met{1, 2}));
}

TEST(GimpPaletteFile, IsWrittenInTheNewFormat) {
    const Palette palette{"Meins", {}, {MadeEntry("Grün", {1, 20, 255}), MadeEntry("", {0, 0, 0})}};
    const PaletteWriting writing = GimpPaletteFile::Write(palette);
    EXPECT_EQ(writing.bytes, "GIMP Palette\nName: Meins\nColumns: 0\n#\n"
                             "  1  20 255\tGrün\n  0   0   0\n");
    EXPECT_TRUE(writing.losses.IsNothing());
}

TEST(GimpPaletteFile, WritingTellsWhatTheFormatDoesNotHold) {
    Palette palette{"two\nlines", {"Group"}, {MadeEntry(" a ", {1, 2, 3}, 0)}};
    palette.entries.push_back(MadeEntry("b", {4, 5, 6}));
    palette.entries[1].Set(3, 50);
    const PaletteWriting writing = GimpPaletteFile::Write(palette);
    EXPECT_EQ(
        writing.losses,
        (PaletteLosses{.paletteNames = 1, .groups = 1, .names = 1, .values = 1, .entries = 0}));
    EXPECT_EQ(Read(writing.bytes).palette,
              (Palette{"two lines", {}, {MadeEntry("a", {1, 2, 3}), MadeEntry("b", {4, 5, 6})}}));
}

} // namespace
