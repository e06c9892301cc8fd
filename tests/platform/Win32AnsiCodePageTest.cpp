// Rules: Library files
#include "platform/Win32AnsiCodePage.h"

#include "common/Windows1252.h"

#include <gtest/gtest.h>

TEST(Win32AnsiCodePage, WesternPageHoldsUmlautsAndTheDivisionSign) {
    const Win32AnsiCodePage page(1252);
    EXPECT_EQ(page.Decode("Gr\xFCn\xF7\x80"), "Gr\xC3\xBCn\xC3\xB7\xE2\x82\xAC");
    EXPECT_EQ(page.Encode("Gr\xC3\xBCn\xC3\xB7\xE2\x82\xAC").bytes, "Gr\xFCn\xF7\x80");
}

TEST(Win32AnsiCodePage, EveryByteOfTheWesternPageComesBack) {
    const Win32AnsiCodePage page(1252);
    std::string bytes;
    for (int octet = 0; octet < 256; ++octet)
        bytes += static_cast<char>(octet);
    const AnsiCodePage::Encoded encoded = page.Encode(page.Decode(bytes));
    EXPECT_EQ(encoded.bytes, bytes);
    EXPECT_EQ(encoded.unstored, "");
}

TEST(Win32AnsiCodePage, WesternPageIsTheOneThatIsUsedWhereThereIsNoWindows) {
    std::string bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    EXPECT_EQ(Win32AnsiCodePage(1252).Decode(bytes), Windows1252::CodePage().Decode(bytes));
}

TEST(Win32AnsiCodePage, CyrillicPageHoldsCyrillic) {
    const Win32AnsiCodePage page(1251);
    EXPECT_EQ(page.Decode("\xD6\xE2\xE5\xF2"), "\xD0\xA6\xD0\xB2\xD0\xB5\xD1\x82");
    EXPECT_EQ(page.Encode("\xD0\xA6\xD0\xB2\xD0\xB5\xD1\x82").bytes, "\xD6\xE2\xE5\xF2");
}

// 0x83 0x5C: the second byte is a backslash.
TEST(Win32AnsiCodePage, DoubleByteCharacterWithABackslashInsideIsOneCharacter) {
    const Win32AnsiCodePage page(932);
    EXPECT_EQ(page.Decode("\x83\x5C"), "\xE3\x82\xBD");
    EXPECT_EQ(page.Encode("\xE3\x82\xBD").bytes, "\x83\x5C");
}

TEST(Win32AnsiCodePage, BrokenBytesBecomeTheReplacementCharacterAndTheRestIsKept) {
    const Win32AnsiCodePage page(932);
    EXPECT_EQ(page.Decode("a\x83\x5C\x83"), "a\xE3\x82\xBD\xEF\xBF\xBD"); // cut in a character
    EXPECT_EQ(page.Decode("\x83\x20z"), "\xEF\xBF\xBD z");
}

TEST(Win32AnsiCodePage, EachCharacterThatHasNoPlaceIsReportedOnceInTheOrderOfTheText) {
    const AnsiCodePage::Encoded encoded =
        Win32AnsiCodePage(1252).Encode("\xE8\x89\xB2 \xD1\x86 \xE8\x89\xB2 \xF0\x9F\x8E\xA8");
    EXPECT_EQ(encoded.bytes, "? ? ? ?");
    EXPECT_EQ(encoded.unstored, "\xE8\x89\xB2\xD1\x86\xF0\x9F\x8E\xA8");
}

TEST(Win32AnsiCodePage, QuestionMarkOfTheTextIsNotReported) {
    const AnsiCodePage::Encoded encoded = Win32AnsiCodePage(1252).Encode("? \xD1\x86");
    EXPECT_EQ(encoded.bytes, "? ?");
    EXPECT_EQ(encoded.unstored, "\xD1\x86");
}

// The platform would turn U+2160, the Roman numeral one, into the letter I.
TEST(Win32AnsiCodePage, LookAlikesAreNotPutInPlaceOfACharacter) {
    const AnsiCodePage::Encoded encoded = Win32AnsiCodePage(1252).Encode("\xE2\x85\xA0\xC4\x80");
    EXPECT_EQ(encoded.bytes, "??");
    EXPECT_EQ(encoded.unstored, "\xE2\x85\xA0\xC4\x80");
}

TEST(Win32AnsiCodePage, Utf8AsTheSystemsPageHoldsEverything) {
    const Win32AnsiCodePage page(65001);
    EXPECT_EQ(page.Decode("\xE8\x89\xB2\xFF"), "\xE8\x89\xB2\xEF\xBF\xBD");
    EXPECT_EQ(page.Encode("\xE8\x89\xB2").bytes, "\xE8\x89\xB2");
    EXPECT_EQ(page.Encode("\xE8\x89\xB2").unstored, "");
}

TEST(Win32AnsiCodePage, EmptyTextStaysEmpty) {
    EXPECT_EQ(Win32AnsiCodePage().Decode(""), "");
    EXPECT_EQ(Win32AnsiCodePage().Encode("").bytes, "");
}
