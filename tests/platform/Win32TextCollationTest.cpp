#include "platform/Win32TextCollation.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>
#include <windows.h>

TEST(Win32TextCollation, LetterCaseIsIgnored) {
    EXPECT_EQ(Win32TextCollation().Compare("Blue", "bLUE"), 0);
    EXPECT_EQ(Win32TextCollation().Compare("\xC3\x9C", "\xC3\xBC"), 0);
}

TEST(Win32TextCollation, SignTellsTheOrder) {
    EXPECT_LT(Win32TextCollation().Compare("blue", "Green"), 0);
    EXPECT_GT(Win32TextCollation().Compare("Green", "blue"), 0);
}

TEST(Win32TextCollation, EmptyTextComesFirst) {
    EXPECT_LT(Win32TextCollation().Compare("", "a"), 0);
    EXPECT_EQ(Win32TextCollation().Compare("", ""), 0);
}

TEST(Win32TextCollation, UmlautStandsBesideItsVowel) {
    EXPECT_LT(Win32TextCollation().Compare("\xC3\x84pfel", "Banane"), 0);
    EXPECT_GT(Win32TextCollation().Compare("\xC3\x84pfel", "Aal"), 0);
}

TEST(Win32TextCollation, OrderIsThatOfThePlatformsOwnComparison) {
    const std::vector<std::string> texts = {"a-b", "ab", "A b", "a_b", "10", "9", "a'b", "~", "AB"};
    for (const std::string& left : texts)
        for (const std::string& right : texts) {
            const int expected = lstrcmpiA(left.c_str(), right.c_str());
            const int actual = Win32TextCollation().Compare(left, right);
            EXPECT_EQ(actual < 0, expected < 0) << left << " / " << right;
            EXPECT_EQ(actual == 0, expected == 0) << left << " / " << right;
        }
}
