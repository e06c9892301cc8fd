// Rules: Finding colors
#include "library/ColorQuery.h"

#include <gtest/gtest.h>

namespace {

using Words = std::vector<std::string>;

std::optional<RedGreenBlue> ColorOf(std::string_view text) {
    return ParseColorQuery(text).color;
}
constexpr RedGreenBlue kSun{255, 204, 77};

TEST(ColorQuery, WordsStandBetweenBlanksAndAreFolded) {
    EXPECT_EQ(ParseColorQuery("  RAL \t Grün\n").words, (Words{"ral", "grün"}));
    EXPECT_EQ(ParseColorQuery("ÄPFEL,birnen").words, (Words{"äpfel,birnen"}));
    EXPECT_TRUE(ParseColorQuery(" \t ").IsNothing());
    EXPECT_TRUE(ParseColorQuery("").IsNothing());
}

TEST(ColorQuery, HexNumberWithItsSignIsAColorInEitherCase) {
    EXPECT_EQ(ColorOf("#FFCC4D"), kSun);
    EXPECT_EQ(ColorOf(" #ffcc4d "), kSun);
    EXPECT_EQ(ParseColorQuery("#FFCC4D").words, Words{"#ffcc4d"});
    for (const char* const text : {"FFCC4D", "#FFCC4", "#FFCC4D0", "#FFCC4G", "#-FCC4D",
                                   "#FFCC4D x", "# FFCC4D", "#", "##FFCC4"})
        EXPECT_FALSE(ColorOf(text)) << text;
}

TEST(ColorQuery, ThreeNumbersAreAColorAndWordsToo) {
    for (const char* const text : {"255 204 77", "255,204,77", " 255, 204 ,77 ", "255;204;077"})
        EXPECT_EQ(ColorOf(text), kSun) << text;
    EXPECT_EQ(ParseColorQuery("255 204 77").words, (Words{"255", "204", "77"}));
    for (const char* const text : {"255 204", "255 204 77 1", "256 204 77", "-1 204 77",
                                   "255 204 x", "255 204 7.7", "99999999999 1 2", "255204077"})
        EXPECT_FALSE(ColorOf(text)) << text;
}

} // namespace
