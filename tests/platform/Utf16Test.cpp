// Rules: Toolkit
#include "platform/Utf16.h"

#include <gtest/gtest.h>

TEST(Utf16, EveryPlaneGoesThereAndBack) {
    const std::string text = "a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x8E\xA8";
    EXPECT_EQ(ToUtf16(text), L"a\u00FC\u20AC\U0001F3A8");
    EXPECT_EQ(ToUtf8(ToUtf16(text)), text);
}

TEST(Utf16, EmptyTextStaysEmpty) {
    EXPECT_TRUE(ToUtf16("").empty());
    EXPECT_TRUE(ToUtf8(L"").empty());
}

TEST(Utf16, NulInsideIsKept) {
    const std::string text("a\0b", 3);
    EXPECT_EQ(ToUtf16(text).size(), 3U);
    EXPECT_EQ(ToUtf8(ToUtf16(text)), text);
}

TEST(Utf16, BrokenBytesBecomeTheReplacementCharacter) {
    EXPECT_EQ(ToUtf16("a\xFF"
                      "b"),
              L"a\uFFFDb");
}

TEST(Utf16, LoneSurrogateBecomesTheReplacementCharacter) {
    const std::wstring lone = {L'a', static_cast<wchar_t>(0xD83C), L'b'};
    EXPECT_EQ(ToUtf8(lone), "a\xEF\xBF\xBD"
                            "b");
}
