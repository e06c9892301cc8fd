// Rules: Foreign palettes
#include "palettes/AdobeColorFile.h"

#include "common/ColorSpaces.h"
#include "palettes/PaletteLimits.h"
#include "tests/palettes/MadePalettes.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using Met = PaletteFaults::Met;

PaletteContent Read(const std::string& bytes) {
    return AdobeColorFile::Read(bytes);
}
RedGreenBlue ReadColor(const std::string& words) {
    return Read("\0\1\0\1"s + words).palette.entries.at(0).Color();
}

const std::string kRedWords = "\0\0\xFF\xFF\0\0\0\0\0\0"s;
const std::string kGrayWords = "\0\x08\x27\x10\0\0\0\0\0\0"s; // white
const std::string kNamedR = "\0\0\0\2\0R\0\0"s;

TEST(AdobeColorFile, VersionOneHasColorsWithoutNames) {
    const PaletteContent content = Read("\0\1\0\2"s + kRedWords + kGrayWords);
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(content.palette,
              (Palette{"", {}, {MadeEntry("", {255, 0, 0}), MadeEntry("", {255, 255, 255})}}));
}

TEST(AdobeColorFile, NamesComeFromTheSecondSection) {
    const std::string bytes = "\0\1\0\1"s + kRedWords + "\0\2\0\1"s + kRedWords + kNamedR;
    const PaletteContent content = Read(bytes);
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(content.palette.entries, (std::vector{MadeEntry("R", {255, 0, 0})}));
}

TEST(AdobeColorFile, VersionTwoMayStandAlone) {
    const PaletteContent content = Read("\0\2\0\1"s + kRedWords + kNamedR);
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(content.palette.entries, (std::vector{MadeEntry("R", {255, 0, 0})}));
}

TEST(AdobeColorFile, EachColorModelIsConverted) {
    EXPECT_EQ(ReadColor("\0\0\xFF\xFF\x80\x80\0\0\0\0"s), (RedGreenBlue{255, 128, 0}));
    // hue 120 degrees, half saturated
    EXPECT_EQ(ReadColor("\0\1\x55\x55\x80\0\xFF\xFF\0\0"s), (RedGreenBlue{127, 255, 127}));
    // inks: 0 is full
    EXPECT_EQ(ReadColor("\0\2\0\0\xFF\xFF\xFF\xFF\xFF\xFF"s), (RedGreenBlue{0, 255, 255}));
    EXPECT_EQ(ReadColor("\0\2\xFF\xFF\xFF\xFF\xFF\xFF\0\0"s), (RedGreenBlue{0, 0, 0}));
    // L 50.00, a 40.00, b -20.00
    EXPECT_EQ(ReadColor("\0\7\x13\x88\x0F\xA0\xF8\x30\0\0"s), SrgbOfLab({50, 40, -20}));
    EXPECT_EQ(ReadColor("\0\x08\x13\x88\0\0\0\0\0\0"s), (RedGreenBlue{128, 128, 128}));
}

TEST(AdobeColorFile, ColorInAnotherModelIsCountedAndLeftOut) {
    for (const char model : {'\3', '\4', '\6', '\x09', '\x0E'}) {
        const PaletteContent content =
            Read("\0\1\0\2\0"s + model + "\0\0\0\0\0\0\0\0"s + kRedWords);
        EXPECT_EQ(content.faults.Of(PaletteFault::UnknownModel), (Met{1, 1}));
        EXPECT_EQ(content.palette.entries.size(), 1U);
    }
}

TEST(AdobeColorFile, NumbersBeyondTheirRangeAreCountedAndLeftOut) {
    for (const std::string& words : {"\0\x08\x27\x11\0\0\0\0\0\0"s, "\0\7\x27\x11\0\0\0\0\0\0"s,
                                     "\0\7\0\0\x32\x01\0\0\0\0"s, "\0\7\0\0\0\0\x80\0\0\0"s}) {
        const PaletteContent content = Read("\0\1\0\1"s + words);
        EXPECT_EQ(content.faults.Of(PaletteFault::OutOfRange), (Met{1, 1}));
        EXPECT_TRUE(content.palette.entries.empty());
    }
}

TEST(AdobeColorFile, CountsThatAreTooLargeEndTheFile) {
    const PaletteContent first = Read("\0\1\xFF\xFF"s + kRedWords);
    EXPECT_EQ(first.faults.Of(PaletteFault::Ends), (Met{1, 2}));
    EXPECT_EQ(first.palette.entries.size(), 1U);
    const PaletteContent name = Read("\0\2\0\1"s + kRedWords + "\xFF\xFF\xFF\xFF\0R"s);
    EXPECT_EQ(name.faults.Of(PaletteFault::Ends), (Met{1, 1}));
    EXPECT_TRUE(name.palette.entries.empty());
}

TEST(AdobeColorFile, ColorsBehindABrokenSecondSectionKeepTheirPlacesWithoutNames) {
    const std::string bytes =
        "\0\1\0\2"s + kRedWords + kGrayWords + "\0\2\0\2"s + kRedWords + kNamedR + kGrayWords;
    const PaletteContent content = Read(bytes);
    EXPECT_EQ(content.palette.entries,
              (std::vector{MadeEntry("R", {255, 0, 0}), MadeEntry("", {255, 255, 255})}));
    EXPECT_EQ(content.faults.Of(PaletteFault::Ends).count, 1U);
}

TEST(AdobeColorFile, SectionsOfDifferentLengthAndOtherBytesBehindThemAreTold) {
    const std::string first = "\0\1\0\2"s + kRedWords + kGrayWords;
    const std::string second = "\0\2\0\1"s + kRedWords + kNamedR;
    EXPECT_EQ(Read(first + second).faults.Of(PaletteFault::Count).count, 1U);
    EXPECT_EQ(Read(first + second).palette.entries.size(), 2U);
    EXPECT_EQ(Read(first + "rest").faults.Of(PaletteFault::Rest).count, 1U);
    EXPECT_EQ(Read(first + second + "x").faults.Of(PaletteFault::Rest).count, 1U);
    EXPECT_EQ(Read(second + second).faults.Of(PaletteFault::Rest).count, 1U);
}

TEST(AdobeColorFile, WritingTellsWhatTheFormatDoesNotHold) {
    Palette palette{"p", {"g"}, {MadeEntry("a", {1, 2, 3}, 0)}};
    palette.entries[0].Set(8, 1);
    const PaletteWriting writing = AdobeColorFile::Write(palette);
    EXPECT_EQ(
        writing.losses,
        (PaletteLosses{.paletteNames = 1, .groups = 1, .names = 0, .values = 1, .entries = 0}));
    EXPECT_EQ(Read(writing.bytes).palette.entries, (std::vector{MadeEntry("a", {1, 2, 3})}));
}

TEST(AdobeColorFile, NoMoreColorsAreWrittenThanItsCountCanSay) {
    Palette palette;
    palette.entries.assign(PaletteLimits::kMostOfAnAdobeColorFile + 5, MadeEntry("", {9, 8, 7}));
    const PaletteWriting writing = AdobeColorFile::Write(palette);
    EXPECT_EQ(writing.losses.entries, 5U);
    const PaletteContent content = Read(writing.bytes);
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(content.palette.entries.size(), PaletteLimits::kMostOfAnAdobeColorFile);
}

} // namespace
