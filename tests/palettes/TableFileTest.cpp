// Rules: Foreign palettes
#include "palettes/TableFile.h"

#include "palettes/PaletteLimits.h"
#include "tests/palettes/MadePalettes.h"

#include <gtest/gtest.h>

namespace {

using Met = PaletteFaults::Met;

// Nothing: no table.
PaletteContent Read(const std::string& text) {
    return TableFile::Read(text).value_or(PaletteContent());
}
// What is expected to be there whole.
std::vector<PaletteEntry> Entries(const std::string& text) {
    const PaletteContent content = Read(text);
    EXPECT_TRUE(content.faults.IsNothing()) << text;
    return content.palette.entries;
}

const std::vector kSun = {MadeEntry("Sun", {255, 204, 77})};

TEST(TableFile, ColumnsAreFoundByTheirTitles) {
    EXPECT_EQ(Entries("name,red,green,blue\nSun,255,204,77\n"), kSun);
    EXPECT_EQ(Entries("B;G;R;Name\n77;204;255;Sun"), kSun);
    EXPECT_EQ(Entries("Blau\tGrün\tROT\tName\r\n77\t204\t255\tSun\r\n"), kSun);
    EXPECT_EQ(Entries("hex,name\n#FFCC4D,Sun\n"), kSun);
    EXPECT_EQ(Entries("name,color\nSun,ffcc4d\n"), kSun);
}

TEST(TableFile, ThreeNumbersHoldBesideAHexNumber) {
    for (const char* const titles : {"name,hex,red,green,blue\nSun,#000000,255,204,77\n",
                                     "name,red,green,blue,hex\nSun,255,204,77,#000000\n",
                                     "name,hex,red,green,blue\nSun,#FFCC4D,1,,2\n",
                                     "red,green,blue,hex,name\n1,,,#FFCC4D,Sun\n"})
        EXPECT_EQ(Entries(titles), kSun) << titles;
}

TEST(TableFile, HexNumberThatIsNoneIsCountedAndItsColorLeftOut) {
    const PaletteContent content = Read("hex\n#FFCC4\n#FFCC4DE\nred\n-FCC4D\n#12345\n");
    EXPECT_TRUE(content.palette.entries.empty());
    EXPECT_EQ(content.faults.Of(PaletteFault::Unreadable), (Met{5, 2}));
}

TEST(TableFile, NumberWithPointAndCommaIsNone) {
    const PaletteContent content = Read("name;r;g;b\na;1.000,5;2;3\nb;1,0,0;2;3\n");
    EXPECT_EQ(content.faults.Of(PaletteFault::Unreadable), (Met{2, 2}));
}

TEST(TableFile, WithoutAHeaderColumnsAreFoundByTheFirstColor) {
    EXPECT_EQ(Entries("Sun,255,204,77\n"), kSun);
    EXPECT_EQ(Entries("255,204,77,Sun\n"), kSun);
    EXPECT_EQ(Entries("255;204;77;Sun\n"), kSun);
    EXPECT_EQ(Entries("#FFCC4D,Sun\n"), kSun);
    EXPECT_EQ(Entries("Sun\t#ffcc4d\n"), kSun);
    EXPECT_EQ(Entries("#ffcc4d"), (std::vector{MadeEntry("", {255, 204, 77})}));
}

TEST(TableFile, ColumnsOfTheFirstColorHoldForAll) {
    EXPECT_EQ(Entries("Sun,255,204,77\n1018,1,2,3\n,4,5,6\n"),
              (std::vector{kSun[0], MadeEntry("1018", {1, 2, 3}), MadeEntry("", {4, 5, 6})}));
}

TEST(TableFile, GroupStandsBeforeTheNameOrBehindIt) {
    const Palette wanted{"", {"Sky"}, {MadeEntry("Sun", {255, 204, 77}, 0)}};
    for (const char* const text :
         {"Sky,Sun,255,204,77\n", "255,204,77,Sun,Sky\n", "Sky;Sun;#FFCC4D\n",
          "red,group,green,name,blue\n255,Sky,204,Sun,77\n",
          "Gruppe;Name;Rot;Gruen;Blau\nSky;Sun;255;204;77\n"})
        EXPECT_EQ(Read(text).palette, wanted) << text;
}

TEST(TableFile, GroupsAreThoseOfTheTextInTheOrderOfTheirFirstColors) {
    const PaletteContent content =
        Read("group,hex\nb,#000001\na,#000002\n,#000003\nb,#000004\nb,#000005\n");
    EXPECT_EQ(content.palette, (Palette{"",
                                        {"b", "a"},
                                        {MadeEntry("", {0, 0, 1}, 0), MadeEntry("", {0, 0, 2}, 1),
                                         MadeEntry("", {0, 0, 3}), MadeEntry("", {0, 0, 4}, 0),
                                         MadeEntry("", {0, 0, 5}, 0)}}));
}

TEST(TableFile, GroupsAreComparedByTheirNamesAndNotByHowTheyAreSpelled) {
    EXPECT_EQ(Read("group,hex\n\"a\"\"\"\"b\",#000001\n\"a\"\"b\",#000002\n").palette.groups,
              (std::vector<std::string>{"a\"\"b", "a\"b"}));
    EXPECT_EQ(Read("group,hex\na,#000001\n\"a\",#000002\n").palette.groups,
              std::vector<std::string>{"a"});
}

TEST(TableFile, ValuesBehindTheColorAreTheProgramsNineInTheirOrder) {
    PaletteEntry wanted = kSun[0];
    for (std::size_t value = 3; value < kColorValueCount; ++value)
        wanted.Set(value, static_cast<std::int16_t>(value * 10));
    EXPECT_EQ(Entries("Sun,255,204,77,30,40,50,60,70,80\n"), std::vector{wanted});
    EXPECT_EQ(Entries("#FFCC4D,30,40,50,60,70,80,Sun\n"), std::vector{wanted});
    EXPECT_EQ(Entries("name,emission,transparency,shininess,specular,diffuse,ambient,hex\n"
                      "Sun,80,70,60,50,40,30,#FFCC4D\n"),
              std::vector{wanted});
}

TEST(TableFile, ValuesThatAreNotThereAreNone) {
    PaletteEntry wanted = kSun[0];
    wanted.Set(4, 0);
    const std::vector<PaletteEntry> entries =
        Entries("name,red,green,blue,ambient,diffuse\nSun,255,204,77,,0\nSun,255,204,77\n");
    EXPECT_EQ(entries, (std::vector{wanted, kSun[0]}));
    EXPECT_FALSE(entries[0].Has(3));
    EXPECT_TRUE(entries[0].Has(4));
}

TEST(TableFile, NumbersAreRoundedAndMayHaveACommaBesideSemicolonsAndTabs) {
    EXPECT_EQ(Entries("254.6,204.4,77.0,Sun\n"), kSun);
    EXPECT_EQ(Entries("254,6;204,4;77;Sun\n"), kSun);
    EXPECT_EQ(Entries("Sun\t254,6\t204,4\t77,0\n"), kSun);
    EXPECT_EQ(Entries("Sun\t254.6\t204.4\t77.0\n"), kSun);
    EXPECT_EQ(Entries("name,r,g,b\nSun,0255,204,7.7e1\n"), kSun);
}

TEST(TableFile, CellsMayStandInQuotes) {
    EXPECT_EQ(Entries("\"a, \"\"b\"\"\nc \",\"255\",204,77\n"),
              (std::vector{MadeEntry("a, \"b\"\nc ", {255, 204, 77})}));
    EXPECT_EQ(Entries(" \"Sun\" , 255 , 204 , 77 \n"), kSun);
    EXPECT_EQ(Entries("\"\";255;204;77\n"), (std::vector{MadeEntry("", {255, 204, 77})}));
}

TEST(TableFile, QuoteThatIsNeverClosedIsACharacter) {
    EXPECT_EQ(Entries("5\" pipe,1,2,3\n\"Sun,255,204,77\n"),
              (std::vector{MadeEntry("5\" pipe", {1, 2, 3}), MadeEntry("\"Sun", {255, 204, 77})}));
}

TEST(TableFile, LinesOfFaultsCountLineBreaksInNames) {
    EXPECT_EQ(Read("\"a\nb\",1,2,3\r\nx,y,z\r\n").faults.Of(PaletteFault::Unreadable), (Met{1, 3}));
}

TEST(TableFile, LinesMayEndAsOnAnyPlatformAndEmptyOnesSayNothing) {
    for (const std::string end : {"\n", "\r\n", "\r"})
        EXPECT_EQ(Entries(end + "Sun,255,204,77" + end + end + ",,," + end + "Sun,255,204,77"),
                  (std::vector{kSun[0], kSun[0]}));
}

TEST(TableFile, RecordsThatAreNoColorAreCountedAndLeftOut) {
    const PaletteContent content = Read("My colors\nSun,255,204,77\na,1,2\nb,1,2,x\nc,,2,3\n"
                                        "d,0x1,2,3\ne,inf,2,3\nf,nan,2,3\n");
    EXPECT_EQ(content.palette.entries, kSun);
    EXPECT_EQ(content.faults.Of(PaletteFault::Unreadable), (Met{7, 1}));
}

TEST(TableFile, ValuesBeyondTheirRangeAreCountedAndLeftOut) {
    const PaletteContent content =
        Read("Sun,255,204,77,100\na,256,0,0\nb,0,-1,0\nc,0,0,1e300\nd,0,0,0,101\n");
    EXPECT_EQ(content.palette.entries.size(), 1U);
    EXPECT_EQ(content.faults.Of(PaletteFault::OutOfRange), (Met{4, 2}));
}

TEST(TableFile, ColumnsAndCellsThatMeanNothingAreCounted) {
    EXPECT_EQ(Read("name,hex,price,stock\nSun,#FFCC4D,1,2\n").faults.Of(PaletteFault::Column),
              (Met{2, 1}));
    EXPECT_EQ(Read("name,hex\nSun,#FFCC4D,more\n").faults.Of(PaletteFault::Column), (Met{1, 2}));
    EXPECT_EQ(Read("x,y,z,1,2,3\n").faults.Of(PaletteFault::Column), (Met{1, 1}));
    EXPECT_EQ(Read("red,green,blue,red\n1,2,3,4\n").palette.entries,
              (std::vector{MadeEntry("", {1, 2, 3})}));
}

TEST(TableFile, TextWithoutAColorIsNoTable) {
    EXPECT_FALSE(TableFile::Read("Dear reader,\nthis is a letter; it has 3 lines.\n1,2\n"));
    EXPECT_FALSE(TableFile::Read(""));
    EXPECT_FALSE(TableFile::Read("\n\n"));
    EXPECT_TRUE(TableFile::Read("name,red,green,blue\n")); // of no colors
}

TEST(TableFile, MoreColumnsThanTheLimitAreCounted) {
    std::string text = "Sun,255,204,77";
    text.append(PaletteLimits::kMostColumns, ',');
    EXPECT_EQ(Read(text + "x\n").faults.Of(PaletteFault::Column), (Met{1, 1}));
}

TEST(TableFile, IsWrittenWithGroupNameAndNineValues) {
    Palette palette{"", {"A, B"}, {MadeEntry("Sun \"1\"", {255, 204, 77}, 0)}};
    palette.entries.push_back(MadeEntry("x", {1, 2, 3}));
    for (std::size_t value = 3; value < kColorValueCount; ++value)
        palette.entries[1].Set(value, static_cast<std::int16_t>(value));
    const PaletteWriting writing = TableFile::Write(palette);
    EXPECT_EQ(writing.bytes,
              "\xEF\xBB\xBFgroup,name,red,green,blue,ambient,diffuse,specular,shininess,"
              "transparency,emission\r\n"
              "\"A, B\",\"Sun \"\"1\"\"\",255,204,77,,,,,,\r\n"
              ",x,1,2,3,3,4,5,6,7,8\r\n");
    EXPECT_TRUE(writing.losses.IsNothing());
}

TEST(TableFile, WritingTellsWhatTheFormatDoesNotHold) {
    const std::string longName(PaletteLimits::kLongestName + 1, 'n');
    const Palette palette{"p",
                          {"a", "a", "empty", ""},
                          {MadeEntry(longName, {1, 2, 3}, 0), MadeEntry("", {1, 2, 3}, 1),
                           MadeEntry("", {1, 2, 3}, 3)}};
    EXPECT_EQ(
        TableFile::Write(palette).losses,
        (PaletteLosses{.paletteNames = 1, .groups = 3, .names = 1, .values = 0, .entries = 0}));
}

} // namespace
