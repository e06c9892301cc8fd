// Rules: Layout, bars and views
#include "mainwindow/CommandTable.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace {

struct Button {
    std::string key;
    ToolbarGroup group;
    std::string toolTip;
    int command;

    bool operator==(const Button&) const = default;
};

TEST(CommandTable, ToolbarHasItsButtonsInTheirOrderWithTheirCommands) {
    using enum ToolbarGroup;
    const std::vector<Button> expected = {
        {"sepST1", Standard, "", 0},
        {"New", Standard, "", IDM_mnuColorNewColor},
        {"sepST2", Standard, "", 0},
        {"Open", Standard, "", IDM_mnuFileOpen},
        {"Close", Standard, "", IDM_mnuFileClose},
        {"Save", Standard, "", IDM_mnuFileSave},
        {"sepST3", Standard, "", 0},
        {"Delete", Standard, "", IDM_mnuColorDelColor},
        {"sepCO1", Color, "", 0},
        {"Cut", Color, "", IDM_mnuColorCut},
        {"Copy", Color, "", IDM_mnuColorCopy},
        {"Paste", Color, "", IDM_mnuColorPaste},
        {"sepCO2", Color, "", 0},
        {"ToggleColorFrame", Color, "Toggle huge color frame on/off", IDM_mnuViewHugeColorDialog},
        {"UpdateColor", Color, "Update color", IDM_mnuColorUpdateColor},
        {"sepLV1", ListView, "", 0},
        {"View Large Icons", ListView, "", IDM_mnuViewColorLargeIcons},
        {"View Small Icons", ListView, "", IDM_mnuViewColorSmallIcons},
        {"View List", ListView, "", IDM_mnuViewColorList},
        {"View Details", ListView, "", IDM_mnuViewColorDetails},
        {"sepSWX1", SolidWorks, "", 0},
        {"GetSWX", SolidWorks, "Get color from SolidWorks", IDM_mnuSWXGetColor},
        {"NewColorUpdate", SolidWorks, "Get NEW color from SolidWorks", IDM_mnuSWXNewColorUpdate},
        {"SetSWX", SolidWorks, "Set color in SolidWorks", IDM_mnuSWXSetColor},
        {"SetSWXComponent", SolidWorks, "Set color for component in SolidWorks",
         IDM_mnuSWXSetColorComponent},
        {"sepSWX2", SolidWorks, "", 0},
        {"ClearColorSWX", SolidWorks, "Clear color in SolidWorks",
         IDM_mnuSWXClearColorFromSelection},
        {"ClearColorComponentSWX", SolidWorks, "Clear color of component in SolidWorks",
         IDM_mnuSWXClearComponentColorFromSelection}};
    std::vector<Button> actual;
    for (const ToolbarRow& row : kToolbarRows)
        actual.push_back({row.key, row.group, row.toolTip, row.command});
    EXPECT_EQ(actual, expected);
}

TEST(CommandTable, EveryButtonHasAPictureOfItsOwnThatSaysWhatItDoes) {
    std::set<std::string> pictures;
    for (const ToolbarRow& row : kToolbarRows) {
        if (row.command == 0) {
            EXPECT_STREQ(row.icon, "");
            continue;
        }
        EXPECT_STRNE(row.icon, "") << row.key;
        EXPECT_TRUE(pictures.insert(row.icon).second) << row.key;
        if (row.key == std::string("ToggleColorFrame")) {
            EXPECT_STREQ(row.icon, "HugeSmall");
        }
    }
}

TEST(CommandTable, NewAndDeleteHaveTheirButtonMenus) {
    struct Entry {
        std::string button;
        std::string key;
        int command;
        bool operator==(const Entry&) const = default;
    };
    const std::vector<Entry> expected = {{"New", "NewMainNode", IDM_mnuColorNewMainNode},
                                         {"New", "NewGroup", IDM_mnuColorNewGroup},
                                         {"New", "NewColor", IDM_mnuColorNewColor},
                                         {"Delete", "DeleteMainNode", IDM_mnuColorDelMainNode},
                                         {"Delete", "DeleteGroup", IDM_mnuColorDelGroup},
                                         {"Delete", "DeleteColor", IDM_mnuColorDelColor}};
    std::vector<Entry> actual;
    for (const ButtonMenuRow& row : kButtonMenuRows)
        actual.push_back({row.buttonKey, row.key, row.command});
    EXPECT_EQ(actual, expected);
}

TEST(CommandTable, OptionsMenuHasItsBuiltInCaptionsInTheirOrder) {
    const std::vector<std::string> expected = {"Optionen",
                                               "Sprache",
                                               "Deutsch",
                                               "Englisch",
                                               "Löschen immer bestätigen",
                                               "Erzeuge Sicherungskopien",
                                               "Immer im Vordergrund",
                                               "-",
                                               "Einstellungen speichern"};
    std::vector<std::string> actual;
    for (const MenuRow& row : MenuRows())
        if (std::string(row.name).starts_with("mnuOptions"))
            actual.emplace_back(row.caption);
    EXPECT_EQ(actual, expected);
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

TEST(CommandTable, EveryButtonRunsAnEntryOfTheMenus) {
    for (const ToolbarRow& row : kToolbarRows)
        EXPECT_EQ(FindCommand(row.command) != nullptr, row.command != 0) << row.key;
    for (const ButtonMenuRow& row : kButtonMenuRows)
        EXPECT_NE(FindCommand(row.command), nullptr) << row.key;
}

} // namespace
