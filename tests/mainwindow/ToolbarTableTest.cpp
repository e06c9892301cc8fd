// Rules: Layout, bars and views
#include "mainwindow/ToolbarTable.h"

#include "mainwindow/CommandTable.h"
#include "tests/fakes/SourceFolder.h"
#include "tests/fakes/Transcripts.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

bool IsSeparator(const ToolbarRow& row) {
    return row.style == ToolbarButtonStyle::Separator;
}

// A line for each button: its key, and the entry of the menus that it runs.
TEST(ToolbarTable, HasItsButtonsInTheirOrderWithTheirCommands) {
    std::string lines;
    for (const ToolbarRow& row : kToolbarRows) {
        const MenuRow* entry = FindCommand(row.command);
        lines += row.key + std::string(": ") + (entry ? entry->name : "-") + "\n";
    }
    ExpectTranscript(lines);
}

TEST(ToolbarTable, BarsStandInTheirOrderAndEachBeginsWithASeparator) {
    auto before = ToolbarGroup::Standard;
    bool mayBeginBar = true;
    for (const ToolbarRow& row : kToolbarRows) {
        EXPECT_GE(row.group, before) << row.key;
        mayBeginBar = mayBeginBar || row.group != before;
        if (mayBeginBar) {
            EXPECT_TRUE(IsSeparator(row)) << row.key;
        }
        mayBeginBar = false;
        before = row.group;
    }
    EXPECT_EQ(before, ToolbarGroup::SolidWorks);
}

TEST(ToolbarTable, SeparatorsPartButtonsAndHaveNothingElse) {
    bool wasSeparator = false;
    for (const ToolbarRow& row : kToolbarRows) {
        EXPECT_FALSE(wasSeparator && IsSeparator(row)) << row.key;
        EXPECT_EQ(row.command == 0, IsSeparator(row)) << row.key;
        if (IsSeparator(row)) {
            EXPECT_STREQ(row.toolTip, "") << row.key;
        }
        wasSeparator = IsSeparator(row);
    }
    EXPECT_FALSE(wasSeparator) << "none stands last";
}

TEST(ToolbarTable, EveryButtonHasAPictureOfItsOwn) {
    std::set<std::string> pictures;
    for (const ToolbarRow& row : kToolbarRows) {
        if (IsSeparator(row)) {
            EXPECT_STREQ(row.icon, "");
            continue;
        }
        EXPECT_TRUE(pictures.insert(row.icon).second) << row.key;
        for (const char* kind : {".svg", ".ico"}) {
            const std::string file = SourceFolder() + "/resources/icons/" + row.icon + kind;
            EXPECT_TRUE(std::filesystem::is_regular_file(file)) << row.key << ": " << file;
        }
    }
}

// The button itself runs one of the entries of its menu.
TEST(ToolbarTable, OnlyDropDownButtonsHaveMenusAndEachHasItsOwnCommandThere) {
    for (const ToolbarRow& button : kToolbarRows) {
        const auto belongs = [&](const ButtonMenuRow& row) {
            return row.buttonKey == std::string(button.key);
        };
        const auto runsTheSame = [&](const ButtonMenuRow& row) {
            return belongs(row) && row.command == button.command;
        };
        const bool isDropDown = button.style == ToolbarButtonStyle::DropDown;
        EXPECT_EQ(std::ranges::any_of(kButtonMenuRows, belongs), isDropDown) << button.key;
        EXPECT_EQ(std::ranges::count_if(kButtonMenuRows, runsTheSame), isDropDown) << button.key;
    }
}

TEST(ToolbarTable, ButtonMenusSayWhatTheMenusSay) {
    std::set<std::string> keys;
    for (const ButtonMenuRow& row : kButtonMenuRows) {
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        ASSERT_NE(FindCommand(row.command), nullptr) << row.key;
        EXPECT_STREQ(row.text, FindCommand(row.command)->caption);
    }
}

TEST(ToolbarTable, EveryButtonRunsAnEntryOfTheMenus) {
    std::set<std::string> keys;
    std::set<int> commands;
    for (const ToolbarRow& row : kToolbarRows) {
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        if (IsSeparator(row))
            continue;
        EXPECT_NE(FindCommand(row.command), nullptr) << row.key;
        EXPECT_TRUE(commands.insert(row.command).second) << row.key;
    }
}

} // namespace
