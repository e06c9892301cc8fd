// Rules: The program as a whole
#include "common/Text.h"

#include "common/FileNames.h"

#include <gtest/gtest.h>

namespace {

using Fields = std::vector<std::string>;

TEST(FieldSplit, GivesOneFieldMoreThanSeparators) {
    EXPECT_EQ(SplitFields("a,b,,c", ","), (Fields{"a", "b", "", "c"}));
    EXPECT_EQ(SplitFields(",", ","), (Fields{"", ""}));
}

TEST(FieldSplit, EmptyTextGivesOneEmptyField) {
    EXPECT_EQ(SplitFields("", ","), Fields{""});
}

TEST(FieldSplit, SeparatorMayHaveSeveralBytes) {
    EXPECT_EQ(SplitFields("1\xC3\xB7"
                          "2",
                          "\xC3\xB7"),
              (Fields{"1", "2"}));
}

TEST(FileNames, PathPartKeepsItsBackslashAndIsEmptyWithoutOne) {
    EXPECT_EQ(FilePathPart("C:\\a\\b.ini"), "C:\\a\\");
    EXPECT_EQ(FileNamePart("C:\\a\\b.ini"), "b.ini");
    EXPECT_EQ(FilePathPart("b.ini"), "");
    EXPECT_EQ(FileNamePart("b.ini"), "b.ini");
}

} // namespace
