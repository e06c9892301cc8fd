// Rules: Foreign palettes
// All formats by one door: recognised by their content, there and back, and broken in every way.

#include "palettes/PaletteFormat.h"

#include "palettes/PaletteLimits.h"
#include "tests/fakes/FakeCodePage.h"
#include "tests/fakes/GoldenFile.h"
#include "tests/palettes/MadePalettes.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

constexpr PaletteFormat kAll[] = {PaletteFormat::Gimp, PaletteFormat::SwatchExchange,
                                  PaletteFormat::AdobeColor, PaletteFormat::Table};
constexpr bool HoldsGroups(PaletteFormat format) {
    return format == PaletteFormat::SwatchExchange || format == PaletteFormat::Table;
}

const FakeCodePage kCodePage = FakeCodePage::Western();

PaletteReading Read(const std::string& bytes) {
    return ReadPalette(bytes, kCodePage);
}

Palette MadePalette(MadePalettes& made, PaletteFormat format) {
    Palette palette = HoldsGroups(format) ? made.WithGroups() : made.WithoutGroups();
    if (format == PaletteFormat::Table)
        made.AddMaterials(palette);
    if (format == PaletteFormat::Gimp)
        palette.name = made.Name();
    return palette;
}

// As UTF-16 with its mark.
std::string Utf16(const std::u16string& text, bool isBigEndian) {
    std::string bytes;
    for (const char16_t unit : u"\xFEFF" + text) {
        const char high = static_cast<char>(unit >> 8);
        const char low = static_cast<char>(unit & 0xFF);
        bytes += isBigEndian ? high : low;
        bytes += isBigEndian ? low : high;
    }
    return bytes;
}

TEST(PaletteFormat, ThereAndBackIsTheSamePalette) {
    MadePalettes made(1);
    for (int round = 0; round < 100; ++round)
        for (const PaletteFormat format : kAll) {
            const Palette palette = MadePalette(made, format);
            const PaletteWriting writing = WritePalette(palette, format);
            ASSERT_TRUE(writing.losses.IsNothing());
            const PaletteReading reading = Read(writing.bytes);
            ASSERT_EQ(reading.format, format);
            ASSERT_TRUE(reading.faults.IsNothing());
            ASSERT_EQ(reading.palette, palette);
        }
}

TEST(PaletteFormat, EveryValueOfRedGreenAndBlueComesBackFromEveryFormat) {
    Palette palette;
    for (int value = 0; value <= 255; ++value)
        palette.entries.push_back(MadeEntry("n", {value, 255 - value, value / 2}));
    for (const PaletteFormat format : kAll)
        EXPECT_EQ(Read(WritePalette(palette, format).bytes).palette, palette);
}

TEST(PaletteFormat, FileCutAtEveryByteGivesTheBeginningOfItsColorsOrNothing) {
    MadePalettes made(2);
    for (const PaletteFormat format : kAll) {
        Palette palette = MadePalette(made, format);
        palette.entries.resize(std::min<std::size_t>(palette.entries.size(), 12));
        palette.entries.push_back(MadeEntry("Last", {1, 2, 3}));
        const std::string bytes = WritePalette(palette, format).bytes;
        const std::size_t whole = Read(bytes).palette.entries.size();
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            const PaletteReading reading = Read(bytes.substr(0, size));
            const std::size_t count = reading.palette.entries.size();
            ASSERT_LE(count, whole);
            // In a binary file it is always told.
            const bool isBinary =
                format == PaletteFormat::SwatchExchange || format == PaletteFormat::AdobeColor;
            if (isBinary && reading.format && count < whole) {
                ASSERT_FALSE(reading.faults.IsNothing()) << size;
            }
        }
    }
}

TEST(PaletteFormat, FilesWithAnyByteChangedAreReadOrRefused) {
    MadePalettes made(3);
    for (const PaletteFormat format : kAll) {
        Palette palette = MadePalette(made, format);
        palette.entries.resize(std::min<std::size_t>(palette.entries.size(), 4));
        const std::string bytes = WritePalette(palette, format).bytes;
        for (std::size_t place = 0; place < bytes.size(); ++place)
            for (const char other : {'\0', '\x7F', '\xFF', '"', '\n', ','}) {
                std::string changed = bytes;
                changed[place] = other;
                for (const PaletteEntry& entry : Read(changed).palette.entries)
                    for (std::size_t value = 0; value < kColorValueCount; ++value) {
                        ASSERT_GE(entry.values[value], 0);
                        ASSERT_LE(entry.values[value], MaximumOfColorValue(value));
                    }
            }
    }
}

TEST(PaletteFormat, IsRecognisedByTheContent) {
    EXPECT_EQ(Read("GIMP Palette\n1 2 3\n").format, PaletteFormat::Gimp);
    EXPECT_EQ(Read("ASEF\0\1\0\0\0\0\0\0"s).format, PaletteFormat::SwatchExchange);
    EXPECT_EQ(Read("\0\1\0\0"s).format, PaletteFormat::AdobeColor);
    EXPECT_EQ(Read("\0\2\0\0"s).format, PaletteFormat::AdobeColor);
    EXPECT_EQ(Read("a,1,2,3\n").format, PaletteFormat::Table);
}

TEST(PaletteFormat, AnythingElseIsNone) {
    for (const std::string& bytes :
         {""s, "\0"s, "\0\3\0\0"s, "BM\0\0"s, "a letter"s, "1,2"s, "\xFF\xFE"s, "\xFE\xFF\0"s,
          "\"D#Lib=0D:2\"\r\n\"G#g=0DG1\"\r\n\"E#a=0DG1:a\xF7"
          "1\xF7"
          "2\"\r\n"s}) {
        const PaletteReading reading = Read(bytes);
        EXPECT_FALSE(reading.format);
        EXPECT_EQ(reading.palette, Palette());
        EXPECT_TRUE(reading.faults.IsNothing());
    }
}

TEST(PaletteFormat, TextsAreReadInEveryEncoding) {
    const std::vector wanted = {MadeEntry("Grün", {1, 2, 3})};
    for (const std::string& bytes :
         {"Grün,1,2,3\n"s, "\xEF\xBB\xBFGrün,1,2,3\n"s, "Gr\xFCn,1,2,3\n"s,
          Utf16(u"Grün,1,2,3\n", true), Utf16(u"Grün,1,2,3\n", false),
          "GIMP Palette\n1 2 3 Gr\xFCn\n"s, "\xEF\xBB\xBFGIMP Palette\n1 2 3 Grün\n"s}) {
        const PaletteReading reading = Read(bytes);
        EXPECT_EQ(reading.palette.entries, wanted);
        EXPECT_TRUE(reading.faults.IsNothing());
    }
}

TEST(PaletteFormat, CharactersThatAreNoneAreTold) {
    // Marked as UTF-8 and broken; half a pair in UTF-16; a byte that the code page does not know.
    for (const std::string& bytes : {"\xEF\xBB\xBF"
                                     "a\xFF,1,2,3\n"s,
                                     Utf16(u"a\xD83D,1,2,3\n", true), "a\x81,1,2,3\n"s}) {
        const PaletteReading reading = Read(bytes);
        ASSERT_EQ(reading.palette.entries.size(), 1U);
        EXPECT_EQ(reading.palette.entries[0].name, "a\xEF\xBF\xBD");
        EXPECT_EQ(reading.faults.Of(PaletteFault::NameBroken).count, 1U);
    }
}

TEST(PaletteFormat, MoreBytesThanTheLimitAreLeftOutAndTold) {
    const std::string bytes = "GIMP Palette\n1 2 3 a\n4 5 6 b\n";
    const PaletteReading whole = ReadPalette(bytes, kCodePage, bytes.size());
    EXPECT_TRUE(whole.faults.IsNothing());
    EXPECT_EQ(whole.palette.entries.size(), 2U);
    const PaletteReading cut = ReadPalette(bytes, kCodePage, bytes.size() - 8);
    EXPECT_EQ(cut.palette.entries, (std::vector{MadeEntry("a", {1, 2, 3})}));
    EXPECT_EQ(cut.faults.Of(PaletteFault::Limit).count, 1U);
}

TEST(PaletteFormat, EndingsNameFormatsInEitherCase) {
    EXPECT_EQ(FormatOfEnding("C:\\a.GPL"), PaletteFormat::Gimp);
    EXPECT_EQ(FormatOfEnding("a.ase"), PaletteFormat::SwatchExchange);
    EXPECT_EQ(FormatOfEnding("a.b.Aco"), PaletteFormat::AdobeColor);
    EXPECT_EQ(FormatOfEnding("a.csv"), PaletteFormat::Table);
    EXPECT_EQ(FormatOfEnding("a.TXT"), PaletteFormat::Table);
    EXPECT_FALSE(FormatOfEnding("a.png"));
    EXPECT_FALSE(FormatOfEnding(""));
}

// The palette that tests/palettes/make-golden-palettes.py writes, by itself, in both formats.
Palette GoldenPalette() {
    return {"",
            {"Metalle", "Grüne 😀"},
            {MadeEntry("frei", {0, 127, 255}), MadeEntry("Gold", {255, 215, 0}, 0),
             MadeEntry("", {1, 2, 3}, 0), MadeEntry("Ωlivgrün", {85, 107, 47}, 1)}};
}

TEST(PaletteFormat, BinaryFilesAreThoseOfAnIndependentWriter) {
    for (const auto& [format, name] :
         {std::pair(PaletteFormat::SwatchExchange, "palettes/golden.ase"),
          std::pair(PaletteFormat::AdobeColor, "palettes/golden.aco")}) {
        EXPECT_EQ(WritePalette(GoldenPalette(), format).bytes, GoldenFile(name)) << name;
        EXPECT_EQ(Read(GoldenFile(name)).palette.entries.size(), 4U);
    }
    EXPECT_EQ(Read(GoldenFile("palettes/golden.ase")).palette, GoldenPalette());
}

TEST(PaletteFormat, EveryColorModelOfAnIndependentWriterIsRead) {
    const std::vector wanted = {MadeEntry("rgb", {255, 128, 0}), MadeEntry("cmyk", {128, 0, 128}),
                                MadeEntry("gray", {128, 128, 128}),
                                MadeEntry("white", {255, 255, 255})};
    for (const char* const name : {"palettes/models.ase", "palettes/models.aco"}) {
        const PaletteReading reading = Read(GoldenFile(name));
        EXPECT_TRUE(reading.faults.IsNothing()) << name;
        EXPECT_EQ(reading.palette.entries, wanted) << name;
    }
}

} // namespace
