// Rules: Library model
#include "library/CompactText.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

TEST(CompactText, IsTheTextWhateverItsLength) {
    for (const std::size_t length : {0U, 1U, 18U, 19U, 20U, 21U, 254U, 255U, 256U, 5000U}) {
        const std::string text(length, 'a');
        EXPECT_EQ(CompactText(text).View(), text);
    }
    EXPECT_EQ(CompactText(std::string_view("a\0b", 3)).View(), std::string_view("a\0b", 3));
    EXPECT_EQ(CompactText().View(), "");
}

TEST(CompactText, GoesWhereItIsMoved) {
    const std::string longText(40, 'l');
    for (const std::string& first : {std::string("short"), longText})
        for (const std::string& second : {std::string("other"), longText + "2"}) {
            CompactText one(first);
            CompactText two(second);
            two = std::move(one);
            EXPECT_EQ(two.View(), first);
            const CompactText three(std::move(two));
            EXPECT_EQ(three.View(), first);
        }
}

} // namespace
