#include "standin/model/CommandLine.h"
#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

namespace {

TEST(CommandLine, WithoutSwitchesThePartIsActiveAndTheWindowIsShown) {
    const CommandLine line = ParseCommandLine({});
    EXPECT_EQ(line.scenario.active, DocumentType::Part);
    EXPECT_FALSE(line.hidden);
    EXPECT_TRUE(line.logFile.empty());
}

TEST(CommandLine, EverySwitchIsRead) {
    const CommandLine line =
        ParseCommandLine({"--scenario", "old-revision", "--assembly", "--fault", "2:null",
                          "--fault", "3:die", "--log", "a b.txt", "--ready-file", "r", "--hidden"});
    EXPECT_EQ(line.scenario.revision, "8.1.0");
    EXPECT_EQ(line.scenario.active, DocumentType::Assembly);
    EXPECT_EQ(line.faults.size(), 2U);
    EXPECT_EQ(line.logFile, "a b.txt");
    EXPECT_EQ(line.readyFile, "r");
    EXPECT_TRUE(line.hidden);
}

TEST(CommandLine, AnUnknownSwitchOrAMissingValueIsRefused) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--help"}, {"--log"}, {"--scenario", "moon"}, {"part"}})
        EXPECT_NE(ErrorNumberOf([&] { (void)ParseCommandLine(arguments); }), 0);
}

TEST(RunOrder, SwitchesTheDocument) {
    StandInModel model;
    RunOrder("document assembly", model);
    EXPECT_EQ(model.ActiveDocument()->Type(), DocumentType::Assembly);
    RunOrder("document none", model);
    EXPECT_EQ(model.ActiveDocument(), nullptr);
}

TEST(RunOrder, ArmsFaultsAndTakesThemAway) {
    StandInModel model;
    RunOrder("fault 1:error:No paint left", model);
    EXPECT_NE(ErrorNumberOf([&] { model.ApplicationObject()->Get("ActiveDoc"); }), 0);
    RunOrder("fault 2:busy:always", model);
    RunOrder("clear-faults", model);
    EXPECT_EQ(ErrorNumberOf([&] { model.ApplicationObject()->Get("ActiveDoc"); }), 0);
}

TEST(RunOrder, RefusesAnythingElse) {
    StandInModel model;
    for (const char* order : {"", "document", "document moon", "fault", "clear-faults now", "quit"})
        EXPECT_NE(ErrorNumberOf([&] { RunOrder(order, model); }), 0) << order;
}

} // namespace
