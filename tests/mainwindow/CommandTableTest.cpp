// Rules: Layout, bars and views
#include "mainwindow/CommandTable.h"

#include "tests/fakes/Transcripts.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

// The captions are those of a program that finds no language file.
TEST(CommandTable, MenusHaveTheirEntriesInTheirOrderWithBuiltInCaptions) {
    std::string lines;
    for (const MenuRow& row : MenuRows())
        lines += row.name + std::string(": ") + row.caption + "\n";
    ExpectTranscript(lines);
}

TEST(CommandTable, EveryEntryHasAHandlerAndTitlesAndSeparatorsHaveNone) {
    for (const MenuRow& row : MenuRows()) {
        const bool isEntry = row.place == MenuKind::Entry || row.place == MenuKind::SubmenuEntry;
        EXPECT_EQ(row.run != nullptr, isEntry) << row.name;
        EXPECT_EQ(FindCommand(row.command) == &row, isEntry) << row.name;
    }
}

TEST(CommandTable, NoNumberAndNoNameStandsTwice) {
    std::set<int> numbers;
    std::set<std::string> names;
    for (const MenuRow& row : MenuRows()) {
        EXPECT_TRUE(numbers.insert(row.command).second) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
}

} // namespace
