// Rules: SolidWorks session
#include "common/FittedMessage.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr int kLineLength = 10; // characters, before a line is wrapped
constexpr MessageSize kRoom{15, 4};

// Every character is one wide and every line one high; lines are wrapped between words.
MessageSize Measure(const std::string& text) {
    MessageSize size{0, 1};
    int line = 0;
    int word = 0;
    for (const char byte : text) {
        if ((static_cast<unsigned char>(byte) & 0xC0U) == 0x80 || byte == '\r')
            continue;
        word = byte == ' ' || byte == '\n' ? 0 : word + 1;
        line = byte == '\n' ? 0 : line + 1;
        const bool isWrapped = line > kLineLength && line > word;
        size.height += byte == '\n' || isWrapped ? 1 : 0;
        line = isWrapped ? word : line;
        size.width = std::max(size.width, line);
    }
    return size;
}

std::string Fitted(const std::string& text) {
    return FittedMessage(text, kRoom, Measure);
}

TEST(FittedMessage, TextWithRoomStaysAsItIs) {
    for (const char* text : {"", "one", "one\r\ntwo\r\nthree\r\nfour", "one\r\n\r\n",
                             "012345678 012345678 012345678 012345678", "012345678901234"})
        EXPECT_EQ(Fitted(text), text);
}

TEST(FittedMessage, LinesBeyondTheRoomAreLeftOutAndThatIsShown) {
    EXPECT_EQ(Fitted("1\r\n2\r\n3\r\n4\r\n5"), "1\r\n2\r\n3\r\n...");
    EXPECT_EQ(Fitted("1\r\n2\r\n3\r\n4\r\n"), "1\r\n2\r\n3\r\n...");
}

TEST(FittedMessage, WrappedLinesCountAsTheyAreWrapped) {
    const std::string text = "012345678 012345678 012345678 ";
    EXPECT_EQ(Fitted(text + text), "012345678 012345678 012345678\r\n...");
}

TEST(FittedMessage, WordThatIsTooWideGoesOnInTheNextLine) {
    EXPECT_EQ(Fitted("a " + std::string(25, 'x')), "a xxxxxxxxxx\r\nxxxxxxxxxx\r\nxxxxx");
}

TEST(FittedMessage, CharactersStayWhole) {
    std::string umlauts;
    for (int count = 0; count < 50; ++count)
        umlauts += "\xC3\xBC";
    const std::string ten = umlauts.substr(0, 20);
    EXPECT_EQ(Fitted(umlauts), ten + "\r\n" + ten + "\r\n" + ten + "\r\n...");
}

TEST(FittedMessage, HugeTextIsCutAtOnce) {
    std::string text;
    for (int line = 0; line < 100000; ++line)
        text += "color " + std::to_string(line) + "\r\n";
    std::size_t measured = 0;
    const auto count = [&](const std::string& part) {
        measured += part.size();
        return Measure(part);
    };
    EXPECT_EQ(FittedMessage(text, kRoom, count), "color 0\r\ncolor 1\r\ncolor 2\r\n...");
    EXPECT_LT(measured, text.size() / 2);
}

} // namespace
