// Rules: Console program
#include "converter/ListedColors.h"

#include "tests/palettes/MadePalettes.h"

#include <gtest/gtest.h>

namespace {

TEST(ListedColorsTest, ColorIsALineOfGroupNameAndNineValues) {
    Palette palette{
        "", {"Metals"}, {MadeEntry("Grün", {1, 20, 255}, 0), MadeEntry("b", {0, 0, 0})}};
    for (std::size_t value = 3; value < kColorValueCount; ++value)
        palette.entries[0].Set(value, static_cast<std::int16_t>(value));
    EXPECT_EQ(ListedColors(palette), "Metals\tGrün\t1\t20\t255\t3\t4\t5\t6\t7\t8\n"
                                     "\tb\t0\t0\t0\t\t\t\t\t\t\n");
}

TEST(ListedColorsTest, WhatWouldBreakTheLineIsSpelledOut) {
    EXPECT_EQ(OnALine("a\tb\nc\rd\\e"), "a\\tb\\nc\\rd\\\\e");
    EXPECT_EQ(OnALine(std::string("\x1B[31m\0\x7F", 7)), "\\x1B[31m\\x00\\x7F");
    EXPECT_EQ(OnALine("Ωmega \xC3\xB7"), "Ωmega \xC3\xB7");
    const Palette palette{"", {"a\tb"}, {MadeEntry("c\nd", {1, 2, 3}, 0)}};
    EXPECT_EQ(ListedColors(palette), "a\\tb\tc\\nd\t1\t2\t3\t\t\t\t\t\t\n");
}

} // namespace
