#include "common/MessageText.h"

#include <gtest/gtest.h>

namespace {

constexpr MessageRoom kRoom{4, 10};

TEST(FittedMessage, TextWithRoomStaysAsItIs) {
    for (const char* text : {"", "one", "one\r\ntwo\r\nthree\r\nfour", "one\r\n\r\n",
                             "0123456789\r\n0123456789\r\n", "01234567890123456789012345678901"})
        EXPECT_EQ(FittedMessage(text, kRoom), text);
}

TEST(FittedMessage, LinesBeyondTheRoomAreLeftOutAndThatIsShown) {
    EXPECT_EQ(FittedMessage("1\r\n2\r\n3\r\n4\r\n5", kRoom), "1\r\n2\r\n3\r\n...");
    EXPECT_EQ(FittedMessage("1\r\n2\r\n3\r\n4\r\n", kRoom), "1\r\n2\r\n3\r\n...");
}

TEST(FittedMessage, LinesThatWouldWrapTooOftenAreCut) {
    const std::string line(100, 'x');
    EXPECT_EQ(FittedMessage(line, kRoom), "xxxxxxxxxx...\r\n...");
}

TEST(FittedMessage, CharactersStayWhole) {
    std::string umlauts;
    for (int count = 0; count < 50; ++count)
        umlauts += "\xC3\xBC";
    std::string ten = umlauts;
    ten.resize(20);
    EXPECT_EQ(FittedMessage(umlauts, kRoom), ten + "...\r\n...");
}

TEST(FittedMessage, HugeTextIsCutAtOnce) {
    std::string text;
    for (int line = 0; line < 100000; ++line)
        text += "color " + std::to_string(line) + "\r\n";
    EXPECT_EQ(FittedMessage(text, kRoom), "color 0\r\ncolor 1\r\ncolor 2\r\n...");
}

} // namespace
