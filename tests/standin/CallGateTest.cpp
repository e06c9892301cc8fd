// Rules: Stand-in for SolidWorks
#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

namespace {

// What the first call, reading the revision, answers under a fault.
AutomationValue FirstAnswer(const std::string& fault) {
    StandInModel model;
    model.Gate().AddFault(ParseFault(fault));
    return model.ApplicationObject()->Get("RevisionNumber");
}

TEST(CallGate, OnlyTheCallWithTheFaultsNumberFails) {
    StandInModel model;
    model.Gate().AddFault(ParseFault("2:error:Out of paint"));
    const AutomationObjectPtr application = model.ApplicationObject();
    EXPECT_EQ(application->Get("RevisionNumber").AsString(), "12.5.0");
    try {
        application->Get("RevisionNumber");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Description(), "Out of paint");
        EXPECT_EQ(error.Member(), "RevisionNumber");
        EXPECT_EQ(error.Number(), ErrorNumber::Automation);
    }
    EXPECT_EQ(application->Get("RevisionNumber").AsString(), "12.5.0");
}

TEST(CallGate, AFaultCanAnswerSomethingElse) {
    EXPECT_EQ(FirstAnswer("1:null").AsObject(), nullptr);
    EXPECT_FALSE(FirstAnswer("1:null").IsEmpty());
    EXPECT_TRUE(FirstAnswer("1:empty").IsEmpty());
    EXPECT_EQ(std::get<std::vector<double>>(FirstAnswer("1:short-array").data).size(), 2U);
    EXPECT_EQ(std::get<AutomationArray>(FirstAnswer("1:text-array").data).size(), 9U);
    EXPECT_EQ(FirstAnswer("1:text").AsString(), "not a number");
}

TEST(CallGate, AFaultLeavesTheCallItselfOut) {
    StandInModel model;
    const AutomationObjectPtr document = StandInClient(model).Document();
    model.Gate().ClearFaults();
    model.Gate().AddFault(ParseFault("1:empty"));
    document->Put("MaterialPropertyValues", std::vector<double>(9, 0.5));
    EXPECT_NE(model.Part().Color()->at(0), 0.5);
}

TEST(CallGate, ABusyServerRejectsTheCallAndThenReceivesIt) {
    StandInModel model;
    model.Gate().AddFault(ParseFault("1:busy:2"));
    const AutomationObjectPtr application = model.ApplicationObject();
    EXPECT_THROW(application->Get("RevisionNumber"), CallRejected);
    EXPECT_THROW(application->Get("RevisionNumber"), CallRejected);
    EXPECT_TRUE(model.Log().Records().empty());
    EXPECT_EQ(application->Get("RevisionNumber").AsString(), "12.5.0");
    EXPECT_EQ(model.Gate().RejectedCalls(), 2U);
    EXPECT_EQ(model.Log().Records().size(), 1U);
}

TEST(CallGate, AServerCanTurnTheNextCallAwayBeforeItIsMade) {
    StandInModel model;
    model.Gate().AddFault(ParseFault("1:busy"));
    EXPECT_FALSE(model.Gate().TakeRejection(FaultKind::RetryLater));
    EXPECT_TRUE(model.Gate().TakeRejection(FaultKind::Busy));
    EXPECT_FALSE(model.Gate().TakeRejection(FaultKind::Busy)) << "once only";
    EXPECT_EQ(model.ApplicationObject()->Get("RevisionNumber").AsString(), "12.5.0");
    EXPECT_EQ(model.Gate().RejectedCalls(), 1U);
}

TEST(CallGate, AServerThatIsAlwaysBusyNeverReceivesTheCall) {
    StandInModel model;
    model.Gate().AddFault(ParseFault("1:busy:always"));
    for (int i = 0; i < 100; ++i)
        EXPECT_THROW(model.ApplicationObject()->Get("RevisionNumber"), CallRejected);
}

TEST(CallGate, AServerThatDiesAnswersNoLaterCall) {
    StandInModel model;
    int deaths = 0;
    model.Gate().SetDieHandler([&] { ++deaths; });
    model.Gate().AddFault(ParseFault("1:die"));
    EXPECT_THROW(model.ApplicationObject()->Get("RevisionNumber"), ServerGone);
    EXPECT_THROW(model.ApplicationObject()->Get("RevisionNumber"), ServerGone);
    EXPECT_EQ(deaths, 1);
    model.Gate().ClearFaults();
    EXPECT_EQ(model.ApplicationObject()->Get("RevisionNumber").AsString(), "12.5.0");
}

TEST(CallGate, KnowsHowManyObjectsClientsHold) {
    StandInModel model;
    EXPECT_EQ(model.Gate().LiveObjects(), 0U);
    {
        const StandInClient client(model);
        const AutomationObjectPtr face = client.Face(3);
        EXPECT_EQ(model.Gate().LiveObjects(), 2U);
    }
    EXPECT_EQ(model.Gate().LiveObjects(), 0U);
}

TEST(CallGate, ObjectsInsideArraysPassTheGateToo) {
    StandInModel model("assembly");
    const AutomationObjectPtr child = StandInClient(model).Child(0);
    model.Log().Clear();
    child->Get("Name2");
    EXPECT_EQ(model.Log().Lines(),
              std::vector<std::string>{"call component \"Housing-1\" Name2()"});
}

TEST(CallGate, AnObjectThatOutlivesTheStandInReportsAGoneServer) {
    AutomationObjectPtr application;
    {
        StandInModel model;
        application = model.ApplicationObject();
    }
    EXPECT_THROW(application->Get("RevisionNumber"), ServerGone);
}

TEST(ParseFault, ReadsEveryForm) {
    EXPECT_EQ(ParseFault("3:error").kind, FaultKind::Error);
    EXPECT_EQ(ParseFault("3:error:a:b").description, "a:b");
    EXPECT_EQ(ParseFault("3:die").callNumber, 3U);
    EXPECT_EQ(ParseFault("7:busy:4").times, 4U);
    EXPECT_EQ(ParseFault("7:busy:always").times, kAlways);
    EXPECT_EQ(ParseFault("7:retry-later:2").kind, FaultKind::RetryLater);
    EXPECT_EQ(ParseFault("7:retry-later:2").times, 2U);
}

TEST(ParseFault, RefusesEverythingElse) {
    for (const char* text : {"", "3", "x:die", "0:die", "3:sleep", "3:null:1", "3:busy:0", ":die"})
        EXPECT_NE(ErrorNumberOf([&] { (void)ParseFault(text); }), 0) << text;
}

} // namespace
