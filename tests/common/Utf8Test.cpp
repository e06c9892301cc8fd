// Rules: Foreign palettes
#include "common/Utf8.h"

#include <gtest/gtest.h>

namespace {

std::string Encoded(char32_t character) {
    std::string text;
    AppendCharacter(text, character);
    return text;
}

TEST(Utf8, CharactersOfEachLengthComeBack) {
    for (const char32_t character : {U'\0', U'A', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xD7FF',
                                     U'\xE000', U'\xFFFF', U'\x10000', U'\x10FFFF'}) {
        const std::string text = Encoded(character) + "x";
        const Utf8Character found = FirstCharacterOf(text);
        EXPECT_EQ(found.value, character);
        EXPECT_EQ(found.length, text.size() - 1);
        EXPECT_FALSE(found.isBroken);
    }
    EXPECT_EQ(Encoded(U'ü'), "ü");
    EXPECT_EQ(Encoded(U'😀'), "😀");
}

TEST(Utf8, NumbersThatAreNoCharacterBecomeTheReplacement) {
    EXPECT_EQ(Encoded(0xD800), "\xEF\xBF\xBD");
    EXPECT_EQ(Encoded(0xDFFF), "\xEF\xBF\xBD");
    EXPECT_EQ(Encoded(0x110000), "\xEF\xBF\xBD");
}

TEST(Utf8, BrokenTextIsFoundByteByByte) {
    for (const std::string_view broken :
         {"\x80", "\xBF", "\xC3", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE2\x82",
          "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF",
          "\xC3(", "\xE2\x82("}) {
        const Utf8Character found = FirstCharacterOf(broken);
        EXPECT_TRUE(found.isBroken);
        EXPECT_EQ(found.length, 1U);
        EXPECT_EQ(found.value, kReplacementCharacter);
        EXPECT_FALSE(IsValidUtf8(broken));
        EXPECT_FALSE(IsValidUtf8(std::string(100, 'a') + std::string(broken)));
    }
}

TEST(Utf8, ValidTextIsSeenWhereverItsCharactersStand) {
    for (std::size_t before = 0; before < 140; ++before)
        EXPECT_TRUE(IsValidUtf8(std::string(before, 'a') + "ü€😀" + std::string(70, 'b')));
    EXPECT_TRUE(IsValidUtf8(""));
}

TEST(Utf8, AsciiIsSeenAtEachPlace) {
    EXPECT_TRUE(IsAscii(""));
    for (std::size_t place = 0; place < 20; ++place) {
        std::string text(20, 'a');
        EXPECT_TRUE(IsAscii(text));
        text[place] = '\x80';
        EXPECT_FALSE(IsAscii(text));
    }
}

} // namespace
