// Rules: Language files and control texts
#include "common/ProfileSection.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

const std::string kNames = "frmMain\0Info\0"s;

// "?": the platform must be asked.
std::string Found(const std::string& lines, const std::string& key,
                  const std::string& names = kNames, const std::string& fallback = "-") {
    return ProfileSection("frmMain", lines, names).Find(key, fallback).value_or("?");
}

TEST(ProfileSectionTest, PlainValueIsGivenAsItStands) {
    EXPECT_EQ(Found("a.Caption=&Datei ...\0b=x=y\0"s, "a.Caption"), "&Datei ...");
    EXPECT_EQ(Found("a=1\0b=x=y\0"s, "b"), "x=y");
    EXPECT_EQ(Found("a=Gr\xFCn\0"s, "A"), "Gr\xFCn") << "letter case of a key is ignored";
}

TEST(ProfileSectionTest, FirstOfTwoKeysCounts) {
    EXPECT_EQ(Found("a=1\0A=2\0"s, "a"), "1");
    EXPECT_EQ(Found("a=\"1\"\0a=2\0"s, "a"), "?");
}

TEST(ProfileSectionTest, KeyMayHaveSeveralWords) {
    const std::string lines = "bar.View List.Caption=List\0bar.View=1\0"s;
    EXPECT_EQ(Found(lines, "bar.View List.Caption"), "List");
    EXPECT_EQ(Found(lines, "bar.View  List.Caption"), "-");
}

TEST(ProfileSectionTest, KeyThatIsNotThereIsMissing) {
    EXPECT_EQ(Found("a=1\0"s, "b"), "-");
    EXPECT_EQ(Found("", "b"), "-");
}

TEST(ProfileSectionTest, FallbackThatThePlatformMayChangeIsLeftToIt) {
    EXPECT_EQ(Found("a=1\0"s, "b", kNames, ""), "");
    EXPECT_EQ(Found("a=1\0"s, "b", kNames, "Datei ..."), "Datei ...");
    for (const char* fallback : {"ends in a blank ", "\"quoted\"", "'quoted'"})
        EXPECT_EQ(Found("a=1\0"s, "b", kNames, fallback), "?") << fallback;
}

TEST(ProfileSectionTest, WhatReadersTakeDifferentlyIsLeftToThePlatform) {
    for (const char* line :
         {"a=", "a= 1", "a=1 ", "a=\"1", "a=1\"", "a='1'", "a=1\t2", "a", " a=1", "a =1", "a\t=1"})
        EXPECT_EQ(Found(line + "\0"s, "a"), "?") << line;
    EXPECT_EQ(Found("a=1\0"s, "\xE4"), "?");
    EXPECT_EQ(Found(";a=1\0"s, ";a"), "?") << "a comment for some";
    for (const char* key : {" a", "a ", "a\tb", " "})
        EXPECT_EQ(Found("a=1\0"s, key), "?") << "'" << key << "'";
    EXPECT_EQ(Found("a=1\0"s, ""), "?");
}

TEST(ProfileSectionTest, SectionThatIsThereTwiceOrNotAtAllIsLeftToThePlatform) {
    EXPECT_EQ(Found("a=1\0"s, "a", "frmMain\0FRMMAIN\0"s), "?");
    EXPECT_EQ(Found("a=1\0"s, "a", "frmMain\0 frmMain \0"s), "?");
    EXPECT_EQ(Found("a=1\0"s, "a", " frmMain\0"s), "?");
    EXPECT_EQ(Found("", "a", ""), "?");
    EXPECT_EQ(Found("a=1\0"s, "a", "FRMMAIN\0"s), "1");
}

} // namespace
