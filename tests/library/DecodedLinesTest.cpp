// Rules: Library files
#include "library/DecodedLines.h"

#include "tests/fakes/FakeCodePage.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(std::string_view content) {
    const FakeCodePage codePage = FakeCodePage::Western();
    DecodedLines lines(content, codePage);
    Lines result;
    while (const auto line = lines.Next())
        result.emplace_back(*line);
    return result;
}

TEST(DecodedLines, EndAtCarriageReturnLineFeedAtLineFeedAndAtCarriageReturn) {
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(LinesOf("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a\rb\r"), (Lines{"a", "b"}));
}

TEST(DecodedLines, EmptyLinesCount) {
    EXPECT_EQ(LinesOf("\r\n\r\na"), (Lines{"", "", "a"}));
    EXPECT_EQ(LinesOf("\n\ra\n\n"), (Lines{"", "", "a", ""}));
    EXPECT_EQ(LinesOf("a\r\r\nb"), (Lines{"a", "", "b"}));
}

TEST(DecodedLines, EmptyContentHasNone) {
    EXPECT_EQ(LinesOf(""), Lines{});
}

TEST(DecodedLines, ZeroBytesBelongToTheirLine) {
    EXPECT_EQ(LinesOf(std::string_view("a\0b\nc", 5)), (Lines{std::string("a\0b", 3), "c"}));
}

TEST(DecodedLines, AreDecoded) {
    EXPECT_EQ(LinesOf("Gr\xFCn\n\xF7"), (Lines{"Grün", "÷"}));
}

TEST(DecodedLines, NoneIsLostWhereThePiecesMeet) {
    for (const std::string end : {"\r\n", "\n", "\r"})
        for (const std::size_t length : {1U, 7U, 1000U, 65534U, 65535U, 65536U, 200000U}) {
            Lines expected;
            std::string content;
            for (std::size_t line = 0; line < 400000 / length + 2; ++line) {
                expected.push_back(std::string(length, 'a') + "ü" + std::to_string(line));
                content += std::string(length, 'a') + '\xFC' + std::to_string(line) + end;
            }
            EXPECT_EQ(LinesOf(content), expected) << length;
        }
}

} // namespace
