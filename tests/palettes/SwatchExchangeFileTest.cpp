// Rules: Foreign palettes
#include "palettes/SwatchExchangeFile.h"

#include "common/ColorSpaces.h"
#include "tests/palettes/MadePalettes.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using Met = PaletteFaults::Met;

constexpr const char kOne[] = "\x3F\x80\x00\x00";  // 1 as a float
constexpr const char kHalf[] = "\x3F\x00\x00\x00"; // 0.5
constexpr const char kZero[] = "\x00\x00\x00\x00";

std::string Float(const char (&bytes)[5]) {
    return {bytes, 4};
}

std::string U16(std::size_t number) {
    return {static_cast<char>(number >> 8 & 0xFF), static_cast<char>(number & 0xFF)};
}
std::string U32(std::size_t number) {
    return U16(number >> 16 & 0xFFFF) + U16(number & 0xFFFF);
}
std::string Block(const std::string& type, const std::string& content) {
    return type + U32(content.size()) + content;
}
std::string File(std::size_t count, const std::string& blocks) {
    return "ASEF\0\1\0\0"s + U32(count) + blocks;
}
// A name of ASCII with its length and the zero at its end.
std::string Name(const std::string& name) {
    std::string units = U16(name.size() + 1);
    for (const char letter : name)
        units += "\0"s + letter;
    return units + "\0\0"s;
}
std::string Color(const std::string& name, const std::string& model, const std::string& values) {
    return Block("\0\1"s, Name(name) + model + values + "\0\2"s);
}
std::string GroupStart(const std::string& name) {
    return Block("\xC0\x01", Name(name));
}
const std::string kGroupEnd = "\xC0\x02\0\0\0\0"s;

PaletteContent Read(const std::string& bytes) {
    return SwatchExchangeFile::Read(bytes);
}
RedGreenBlue ReadColor(const std::string& model, const std::string& values) {
    return Read(File(1, Color("c", model, values))).palette.entries.at(0).Color();
}

TEST(SwatchExchangeFile, BytesByHandAreAGroupWithAColorAndOneBehindIt) {
    // One group "Ab" with the color "Rü" (255, 128, 0), and "z" (0, 0, 0) behind it.
    const std::string bytes = "ASEF\x00\x01\x00\x00\x00\x00\x00\x04"
                              "\xC0\x01\x00\x00\x00\x08\x00\x03\x00\x41\x00\x62\x00\x00"
                              "\x00\x01\x00\x00\x00\x1A\x00\x03\x00\x52\x00\xFC\x00\x00"
                              "RGB \x3F\x80\x00\x00\x3F\x00\x80\x81\x00\x00\x00\x00\x00\x00"
                              "\xC0\x02\x00\x00\x00\x00"
                              "\x00\x01\x00\x00\x00\x18\x00\x02\x00\x7A\x00\x00"
                              "RGB \x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x02"s;
    const PaletteContent content = Read(bytes);
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(
        content.palette,
        (Palette{"", {"Ab"}, {MadeEntry("Rü", {255, 128, 0}, 0), MadeEntry("z", {0, 0, 0})}}));
}

TEST(SwatchExchangeFile, EachColorModelIsConverted) {
    EXPECT_EQ(ReadColor("RGB ", Float(kOne) + Float(kHalf) + Float(kZero)),
              (RedGreenBlue{255, 128, 0}));
    EXPECT_EQ(ReadColor("CMYK", Float(kZero) + Float(kOne) + Float(kZero) + Float(kHalf)),
              (RedGreenBlue{128, 0, 128}));
    EXPECT_EQ(ReadColor("Gray", Float(kHalf)), (RedGreenBlue{128, 128, 128}));
    EXPECT_EQ(ReadColor("GRAY", Float(kOne)), (RedGreenBlue{255, 255, 255}));
    // a = 40, b = -20
    EXPECT_EQ(ReadColor("LAB ", Float(kHalf) + "\x42\x20\0\0"s + "\xC1\xA0\0\0"s),
              SrgbOfLab({50, 40, -20}));
}

TEST(SwatchExchangeFile, ColorInAnotherModelIsCountedAndLeftOut) {
    const PaletteContent content =
        Read(File(2, Color("x", "XYZ ", Float(kOne)) + Color("g", "Gray", Float(kOne))));
    EXPECT_EQ(content.faults.Of(PaletteFault::UnknownModel), (Met{1, 1}));
    EXPECT_EQ(content.palette.entries, (std::vector{MadeEntry("g", {255, 255, 255})}));
}

TEST(SwatchExchangeFile, NumbersBeyondTheirRangeAreCountedAndLeftOut) {
    const std::string two = "\x40\0\0\0"s;
    const std::string notANumber = "\x7F\xC0\0\0"s;
    const std::string infinite = "\x7F\x80\0\0"s;
    const std::string minusOne = "\xBF\x80\0\0"s;
    for (const std::string& value : {two, notANumber, infinite, minusOne}) {
        const PaletteContent content = Read(File(1, Color("x", "Gray", value)));
        EXPECT_EQ(content.faults.Of(PaletteFault::OutOfRange), (Met{1, 1}));
        EXPECT_TRUE(content.palette.entries.empty());
    }
}

TEST(SwatchExchangeFile, WhatRoundingPutBeyondTheEndIsTheEnd) {
    EXPECT_EQ(ReadColor("Gray", "\x3F\x80\0\x10"s), (RedGreenBlue{255, 255, 255}));
}

TEST(SwatchExchangeFile, GroupsNeedNoEndAndMayBeEmpty) {
    const std::string color = Color("c", "Gray", Float(kOne));
    const PaletteContent content =
        Read(File(5, GroupStart("a") + color + GroupStart("b") + GroupStart("a") + color));
    EXPECT_TRUE(content.faults.IsNothing());
    EXPECT_EQ(content.palette,
              (Palette{"",
                       {"a", "b", "a"},
                       {MadeEntry("c", {255, 255, 255}, 0), MadeEntry("c", {255, 255, 255}, 2)}}));
}

TEST(SwatchExchangeFile, CountOfTheFileIsNotBelieved) {
    const std::string color = Color("c", "Gray", Float(kOne));
    for (const std::size_t count : {0U, 1U, 3U, 0xFFFFFFFFU}) {
        const PaletteContent content = Read(File(count, color + color));
        EXPECT_EQ(content.palette.entries.size(), 2U);
        EXPECT_EQ(content.faults.Of(PaletteFault::Count), (Met{1, 2})) << count;
    }
}

TEST(SwatchExchangeFile, LengthsThatAreTooLargeEndTheFileOrTheBlock) {
    const std::string color = Color("c", "Gray", Float(kOne));
    const PaletteContent longBlock = Read(File(2, color + "\0\1\xFF\xFF\xFF\xFF"s + "rest"));
    EXPECT_EQ(longBlock.faults.Of(PaletteFault::Ends), (Met{1, 2}));
    EXPECT_EQ(longBlock.palette.entries.size(), 1U);
    const PaletteContent longName =
        Read(File(2, Block("\0\1"s, "\xFF\xFF\0aGray"s + Float(kOne)) + color));
    EXPECT_EQ(longName.faults.Of(PaletteFault::Unreadable), (Met{1, 1}));
    EXPECT_EQ(longName.palette.entries.size(), 1U);
}

TEST(SwatchExchangeFile, UnknownBlocksAreCountedAndPassedOver) {
    const PaletteContent content =
        Read(File(2, Block("\x12\x34", "anything") + Color("c", "Gray", Float(kOne))));
    EXPECT_EQ(content.faults.Of(PaletteFault::Unreadable), (Met{1, 1}));
    EXPECT_EQ(content.palette.entries.size(), 1U);
}

TEST(SwatchExchangeFile, NameWithHalfACharacterHasTheReplacementForIt) {
    const std::string block = "\0\2\xD8\x3D\0\0"s + "Gray" + Float(kOne) + "\0\2"s;
    const PaletteContent content = Read(File(1, Block("\0\1"s, block)));
    EXPECT_EQ(content.palette.entries.at(0).name, "\xEF\xBF\xBD");
    EXPECT_EQ(content.faults.Of(PaletteFault::NameBroken), (Met{1, 1}));
}

TEST(SwatchExchangeFile, NameMayBeWithoutAZeroAtItsEndAndHasNothingBehindOne) {
    const std::string rest = "Gray" + Float(kOne) + "\0\2"s;
    EXPECT_EQ(Read(File(1, Block("\0\1"s, "\0\1\0a"s + rest))).palette.entries.at(0).name, "a");
    EXPECT_EQ(Read(File(1, Block("\0\1"s, "\0\3\0a\0\0\0b"s + rest))).palette.entries.at(0).name,
              "a");
}

TEST(SwatchExchangeFile, WritingTellsWhatTheFormatDoesNotHold) {
    Palette palette{"p", {"g"}, {MadeEntry(std::string("a\0b", 3), {1, 2, 3}, 0)}};
    palette.entries[0].Set(8, 1);
    const PaletteWriting writing = SwatchExchangeFile::Write(palette);
    EXPECT_EQ(
        writing.losses,
        (PaletteLosses{.paletteNames = 1, .groups = 0, .names = 1, .values = 1, .entries = 0}));
    EXPECT_EQ(Read(writing.bytes).palette, (Palette{"", {"g"}, {MadeEntry("a", {1, 2, 3}, 0)}}));
}

} // namespace
