#include "common/SingleByteTable.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* kNoMeaning = "\xEF\xBF\xBD"; // U+FFFD

// ASCII, "ä" under E4, the euro sign under 80 and once more under 81, nothing else.
std::string CharacterOf(unsigned char byte) {
    if (byte < 0x80)
        return std::string(1, static_cast<char>(byte));
    if (byte == 0xE4)
        return "ä";
    return byte <= 0x81 ? "€" : kNoMeaning;
}

bool IsStoredAs(unsigned char byte) {
    return byte < 0x81 || byte == 0xE4;
}

const SingleByteTable kTable(CharacterOf, IsStoredAs);

TEST(SingleByteTable, DecodesBytesToCharactersOfOneTwoAndThreeBytes) {
    EXPECT_EQ(kTable.Decode("a\xE4\x80z"), "aä€z");
    EXPECT_EQ(kTable.Decode(""), "");
    EXPECT_EQ(kTable.Decode(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

TEST(SingleByteTable, ByteWithoutAMeaningBecomesTheReplacementCharacter) {
    EXPECT_EQ(kTable.Decode("\x90"), kNoMeaning);
}

TEST(SingleByteTable, EncodingGivesTheBytesBack) {
    EXPECT_EQ(kTable.Encode("aä€z"), "a\xE4\x80z");
    EXPECT_EQ(kTable.Encode(""), "");
    EXPECT_EQ(kTable.Encode(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

TEST(SingleByteTable, CharacterOfTwoBytesIsStoredAsTheOneThatComesBack) {
    EXPECT_EQ(kTable.Decode("\x81"), "€");
    EXPECT_EQ(kTable.Encode("€"), "\x80");
}

TEST(SingleByteTable, TextWithAnyOtherCharacterIsNotEncoded) {
    for (const char* text : {"aö", "日", kNoMeaning, "\xF0\x9F\x8E\xA8"})
        EXPECT_FALSE(kTable.Encode(text).has_value()) << text;
}

TEST(SingleByteTable, BrokenTextIsNotEncoded) {
    // Tail without a head, cut characters, and overlong forms of "/" and of "ä".
    for (const char* text :
         {"\xA4", "\xC3", "\xC3z", "\xE2\x82", "\xE2z\xAC", "\xC0\xAF", "\xE0\x83\xA4", "\xFF"})
        EXPECT_FALSE(kTable.Encode(text).has_value()) << text;
}

} // namespace
