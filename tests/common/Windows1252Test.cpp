// Rules: Library files
#include "common/Windows1252.h"

#include <gtest/gtest.h>

namespace {

TEST(Windows1252Test, HasTheCharactersOfLatin1AndThoseOfItsOwn) {
    EXPECT_EQ(Windows1252::CharacterOf('A'), U'A');
    EXPECT_EQ(Windows1252::CharacterOf(0x80), U'\u20AC');
    EXPECT_EQ(Windows1252::CharacterOf(0x9F), U'\u0178');
    EXPECT_EQ(Windows1252::CharacterOf(0xA0), U'\u00A0');
    EXPECT_EQ(Windows1252::CharacterOf(0xF7), U'\u00F7');
}

TEST(Windows1252Test, EachByteComesBack) {
    const SingleByteCodePage codePage = Windows1252::CodePage();
    for (int number = 0; number < 0x100; ++number) {
        const std::string byte(1, static_cast<char>(number));
        const AnsiCodePage::Encoded again = codePage.Encode(codePage.Decode(byte));
        EXPECT_EQ(again.bytes, byte) << number;
        EXPECT_EQ(again.unstored, "") << number;
    }
}

TEST(Windows1252Test, OtherCharactersCannotBeStored) {
    const AnsiCodePage::Encoded encoded = Windows1252::CodePage().Encode("aЖ\xEF\xBF\xBD");
    EXPECT_EQ(encoded.bytes, "a??");
    EXPECT_EQ(encoded.unstored, "Ж\xEF\xBF\xBD");
}

} // namespace
