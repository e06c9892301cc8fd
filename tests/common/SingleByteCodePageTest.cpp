// Rules: The program as a whole
#include "common/SingleByteCodePage.h"

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

const SingleByteCodePage kPage(CharacterOf, IsStoredAs);

TEST(SingleByteCodePage, DecodesBytesToCharactersOfOneTwoAndThreeBytes) {
    EXPECT_EQ(kPage.Decode("a\xE4\x80z"), "aä€z");
    EXPECT_EQ(kPage.Decode(""), "");
    EXPECT_EQ(kPage.Decode(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

TEST(SingleByteCodePage, ByteWithoutAMeaningBecomesTheReplacementCharacter) {
    EXPECT_EQ(kPage.Decode("\x90"), kNoMeaning);
}

TEST(SingleByteCodePage, EveryLengthAndPlaceIsDecoded) {
    for (std::size_t length = 1; length < 40; ++length)
        for (std::size_t place = 0; place < length; ++place) {
            std::string bytes(length, 'a');
            bytes[place] = '\xE4';
            const std::string expected =
                std::string(place, 'a') + "ä" + std::string(length - place - 1, 'a');
            EXPECT_EQ(kPage.Decode(bytes), expected);
            EXPECT_EQ(kPage.Encode(expected).bytes, bytes);
        }
    EXPECT_EQ(kPage.Decode(std::string(100, '\x80')).size(), 300U);
}

TEST(SingleByteCodePage, AsciiNeedNotStandForItself) {
    const SingleByteCodePage shifted(
        [](unsigned char byte) { return byte == 'a'   ? "b"
                                        : byte == 'b' ? "€"
                                                      : kNoMeaning; },
        [](unsigned char byte) { return byte == 'a' || byte == 'b'; });
    EXPECT_EQ(shifted.Decode("aaaaaaaaab"), "bbbbbbbbb€");
    EXPECT_EQ(shifted.Decode(std::string(100, 'b')).size(), 300U);
    EXPECT_EQ(shifted.Encode("bbbbbbbbb€").bytes, "aaaaaaaaab");
}

TEST(SingleByteCodePage, EncodingGivesTheBytesBack) {
    EXPECT_EQ(kPage.Encode("aä€z").bytes, "a\xE4\x80z");
    EXPECT_EQ(kPage.Encode("aä€z").unstored, "");
    EXPECT_EQ(kPage.Encode("").bytes, "");
    EXPECT_EQ(kPage.Encode(std::string_view("a\0b", 3)).bytes, std::string("a\0b", 3));
}

TEST(SingleByteCodePage, CharacterOfTwoBytesIsStoredAsTheOneThatComesBack) {
    EXPECT_EQ(kPage.Decode("\x81"), "€");
    EXPECT_EQ(kPage.Encode("€").bytes, "\x80");
}

TEST(SingleByteCodePage, CharacterThatHasNoPlaceIsAQuestionMarkAndToldOnceInTheOrderOfTheText) {
    const AnsiCodePage::Encoded encoded = kPage.Encode("日a\xF0\x9F\x8E\xA8ö日?");
    EXPECT_EQ(encoded.bytes, "?a????");
    EXPECT_EQ(encoded.unstored, "日\xF0\x9F\x8E\xA8ö");
}

TEST(SingleByteCodePage, WhatIsBrokenCountsAsTheReplacementCharacter) {
    // A tail without a head, cut characters, bytes that never stand in a text, and overlong forms
    // of "/" and of "ä".
    for (const char* text : {"\xA4", "\xC3", "\xC3z", "\xE2\x82", "\xE2z\xAC", "\xF0\x9F\x8E",
                             "\xFF", "\xC0\xAF", "\xE0\x83\xA4"}) {
        const AnsiCodePage::Encoded encoded = kPage.Encode(std::string("ä") + text);
        EXPECT_EQ(encoded.bytes.substr(0, 2), "\xE4?") << text;
        EXPECT_EQ(encoded.unstored, kNoMeaning) << text;
    }
}

} // namespace
