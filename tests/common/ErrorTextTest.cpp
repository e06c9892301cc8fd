// Rules: Language files and control texts
#include "common/ErrorText.h"

#include <gtest/gtest.h>

namespace {

TEST(WithArguments, PutsEachArgumentInItsPlaceInAnyOrderAndOnce) {
    EXPECT_EQ(WithArguments("not between %2 and %3: %1", {"a", "b", "c"}),
              "not between b and c: a");
    EXPECT_EQ(WithArguments("%1%1", {"x"}), "xx");
    EXPECT_EQ(WithArguments("%1 of %2", {"%2", "b"}), "%2 of b") << "an argument is no template";
}

TEST(WithArguments, LeavesEveryOtherPercentSign) {
    EXPECT_EQ(WithArguments("100 %, %x %0 %", {"a"}), "100 %, %x %0 %");
    EXPECT_EQ(WithArguments("a %2 b", {"x"}), "a  b") << "a place without an argument is empty";
}

TEST(Quoted, IsCutAfterFortyCharacters) {
    const std::string forty(40, 'x');
    EXPECT_EQ(Quoted(forty), forty);
    EXPECT_EQ(Quoted(forty + "y"), forty + "...");
    std::string umlauts;
    for (int count = 0; count < 41; ++count)
        umlauts += "\xC3\xA4";
    EXPECT_EQ(Quoted(umlauts), umlauts.substr(0, 80) + "...");
}

TEST(Quoted, StaysOnOneLine) {
    EXPECT_EQ(Quoted(std::string("a\r\nb\tc\0d", 8)), "a  b c d");
}

} // namespace
