// Rules: Stand-in for SolidWorks
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

TEST(RunOrder, SetsWhatClientsReadOfTheApplicationAndTheActiveDocument) {
    StandInModel model;
    RunOrder("revision 8.2.1", model);
    RunOrder("visible false", model);
    RunOrder("title Other part", model);
    RunOrder("path C:\\models\\Other part.SLDPRT", model);
    const AutomationObjectPtr application = model.ApplicationObject();
    EXPECT_EQ(application->Get("RevisionNumber").AsString(), "8.2.1");
    EXPECT_FALSE(application->Get("Visible").AsBoolean());
    const AutomationObjectPtr document = application->Get("ActiveDoc").AsObject();
    EXPECT_EQ(document->Get("GetTitle").AsString(), "Other part");
    EXPECT_EQ(document->Get("GetPathName").AsString(), "C:\\models\\Other part.SLDPRT");
}

TEST(RunOrder, RefusesATitleWithoutADocument) {
    StandInModel model("no-document");
    EXPECT_NE(ErrorNumberOf([&] { RunOrder("title x", model); }), 0);
}

TEST(RunOrder, RefusesAnythingElse) {
    StandInModel model;
    for (const char* order :
         {"", "document", "document moon", "fault", "clear-faults now", "quit", "visible maybe"})
        EXPECT_NE(ErrorNumberOf([&] { RunOrder(order, model); }), 0) << order;
}

} // namespace
