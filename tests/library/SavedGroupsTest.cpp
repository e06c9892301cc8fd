// Rules: Library files
#include "library/SavedGroups.h"

#include <gtest/gtest.h>

namespace {

TEST(SavedGroups, AreFoundByTheirKeys) {
    SavedGroups groups;
    groups.Add("3DG1", 7);
    groups.Add("3DG2", 5);
    EXPECT_EQ(groups.Find("3DG1"), 7U);
    EXPECT_EQ(groups.Find("3DG2"), 5U);
}

TEST(SavedGroups, NumberInAKeyNeedNotTellThePlace) {
    SavedGroups groups;
    ColorTable::GroupNumber number = 100;
    for (const char* const key : {"0DG3", "0DG1", "1DG1", "2", "G", "", "0DG0004"})
        groups.Add(key, number++);
    EXPECT_EQ(groups.Find("0DG3"), 100U);
    EXPECT_EQ(groups.Find("0DG1"), 101U);
    EXPECT_EQ(groups.Find("1DG1"), 102U);
    EXPECT_EQ(groups.Find("2"), 103U);
    EXPECT_EQ(groups.Find("G"), 104U);
    EXPECT_EQ(groups.Find(""), 105U);
    EXPECT_EQ(groups.Find("0DG0004"), 106U);
}

TEST(SavedGroups, OtherKeysWithTheNumbersOfGroupsAreNotFound) {
    SavedGroups groups;
    groups.Add("0DG1", 1);
    groups.Add("0DG2", 2);
    for (const char* const key :
         {"1", "G1", "1DG1", "0DG01", "0DG1 ", "0dg1", "0DG0", "0DG3", "0DG", "",
          "0DG18446744073709551617", "0DG99999999999999999999999999999999"})
        EXPECT_EQ(groups.Find(key), std::nullopt) << key;
}

TEST(SavedGroups, FirstGroupWithAKeyKeepsIt) {
    SavedGroups groups;
    groups.Add("0DG1", 1);
    groups.Add("0DG1", 2);
    groups.Add("0DG2", 3);
    groups.Add("group", 4);
    groups.Add("group", 5);
    EXPECT_EQ(groups.Find("0DG1"), 1U);
    EXPECT_EQ(groups.Find("0DG2"), 3U);
    EXPECT_EQ(groups.Find("group"), 4U);
}

} // namespace
