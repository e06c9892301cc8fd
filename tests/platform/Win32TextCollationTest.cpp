// Rules: Tree and list views
#include "platform/Win32TextCollation.h"

#include "platform/Utf16.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>
#include <windows.h>

namespace {

using Texts = std::vector<std::string>;

// Negative, 0 or positive, by the sort keys.
int Order(const std::string& left, const std::string& right) {
    const Win32TextCollation collation;
    return collation.SortKey(left).compare(collation.SortKey(right));
}

// The same by the platform's own comparison.
int PlatformOrder(const std::string& left, const std::string& right) {
    const std::wstring wideLeft = ToUtf16(left);
    const std::wstring wideRight = ToUtf16(right);
    return CompareStringEx(LOCALE_NAME_USER_DEFAULT, NORM_IGNORECASE, wideLeft.c_str(),
                           static_cast<int>(wideLeft.size()), wideRight.c_str(),
                           static_cast<int>(wideRight.size()), nullptr, nullptr, 0) -
           CSTR_EQUAL;
}

int Sign(int order) {
    return (order > 0) - (order < 0);
}

void ExpectThePlatformsOrder(const Texts& texts) {
    for (const std::string& left : texts)
        for (const std::string& right : texts)
            EXPECT_EQ(Sign(Order(left, right)), Sign(PlatformOrder(left, right)))
                << '"' << left << "\" / \"" << right << '"';
}

std::string RandomText(std::mt19937& random, const Texts& characters) {
    std::string text;
    for (auto length = random() % 7; length > 0; --length)
        text += characters[random() % characters.size()];
    return text;
}

} // namespace

TEST(Win32TextCollation, LetterCaseIsIgnored) {
    EXPECT_EQ(Order("Blue", "bLUE"), 0);
    EXPECT_EQ(Order("\xC3\x9C", "\xC3\xBC"), 0);
}

TEST(Win32TextCollation, LettersStandInAlphabeticalOrder) {
    EXPECT_LT(Order("blue", "Green"), 0);
    EXPECT_GT(Order("Green", "blue"), 0);
}

TEST(Win32TextCollation, EmptyTextComesFirst) {
    EXPECT_LT(Order("", "a"), 0);
    EXPECT_LT(Order("", "-"), 0);
    EXPECT_EQ(Order("", ""), 0);
}

TEST(Win32TextCollation, UmlautStandsBesideItsVowel) {
    EXPECT_LT(Order("\xC3\x84pfel", "Banane"), 0);
    EXPECT_GT(Order("\xC3\x84pfel", "Aal"), 0);
}

TEST(Win32TextCollation, NumbersAreTexts) {
    EXPECT_LT(Order("100", "20"), 0);
    ExpectThePlatformsOrder({"0", "1", "10", "100", "2", "20", "255", "-1", "-10", "9"});
}

TEST(Win32TextCollation, OrderIsThatOfThePlatformsOwnComparison) {
    ExpectThePlatformsOrder({"a-b",
                             "ab",
                             "A b",
                             "a_b",
                             "10",
                             "9",
                             "a'b",
                             "~",
                             "AB",
                             "co-op",
                             "coop",
                             "Stra\xC3\x9F"
                             "e",
                             "strasse",
                             "\xE2\x82\xAC",
                             "\xF0\x9F\x8E\xA8",
                             "\xC3\xA9t\xC3\xA9",
                             "ete",
                             " ",
                             "  ",
                             "(R:0 G:0 B:255)"});
}

TEST(Win32TextCollation, OrderOfRandomTextsIsThatOfThePlatformsOwnComparison) {
    const Texts characters = {"a",        "A",        "b",        "z",        "Z",       "0", "9",
                              "-",        "'",        " ",        "_",        ".",       "(", "\t",
                              "\xC3\xA4", "\xC3\x84", "\xC3\x9F", "\xC3\xA9", "\xC3\xB8"};
    std::mt19937 random(20);
    Texts texts(150);
    std::ranges::generate(texts, [&] { return RandomText(random, characters); });
    ExpectThePlatformsOrder(texts);
}

TEST(Win32TextCollation, TextsWithAZeroInsideAreComparedAsAWhole) {
    using namespace std::string_literals;
    ExpectThePlatformsOrder({"a"s, "a\0"s, "a\0b"s, "a\0c"s, "ab"s, "\0"s, "b\0a"s});
}

TEST(Win32TextCollation, LowerCaseKnowsAccentsAndLeavesTheRest) {
    const Win32TextCollation collation;
    EXPECT_EQ(collation.LowerCase("Gold 24K"), "gold 24k");
    EXPECT_EQ(collation.LowerCase("\xC3\x84RMEL \xC3\x89\xC3\x98\xD0\x96"),
              "\xC3\xA4rmel \xC3\xA9\xC3\xB8\xD0\xB6");
    EXPECT_EQ(collation.LowerCase(""), "");
}
