// Rules: Stand-in for SolidWorks
#include "standin/model/CallText.h"
#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

namespace {

TEST(CallText, EveryKindOfValueHasItsOwnForm) {
    EXPECT_EQ(CallText({}), "Empty");
    EXPECT_EQ(CallText(AutomationObjectPtr()), "Nothing");
    EXPECT_EQ(CallText(true), "True");
    EXPECT_EQ(CallText(false), "False");
    EXPECT_EQ(CallText(3), "3");
    EXPECT_EQ(CallText(3.0), "3.0");
    EXPECT_EQ(CallText(0.5), "0.5");
    EXPECT_EQ(CallText("a \"b\"\\\r\n"), "\"a \\\"b\\\"\\\\\\r\\n\"");
    EXPECT_EQ(CallText(std::vector<double>{1, 0.5}), "[1, 0.5]");
    EXPECT_EQ(CallText(AutomationArray{1, "a"}), "Array(1, \"a\")");
}

TEST(CallText, DoublesAreTheirFullSeventeenDigits) {
    EXPECT_EQ(CallText(std::vector<double>{128 / 255.0, 0.1}),
              "[0.50196078431372548, 0.10000000000000001]");
}

TEST(CallLog, EveryCallIsRecordedInOrderWithObjectMemberAndArguments) {
    StandInModel model;
    const StandInClient client(model);
    const AutomationObjectPtr face = client.Face(1);
    face->Invoke("Select", {true});
    face->Put("MaterialPropertyValues", std::vector<double>(9, 0.5));
    const std::string half = "0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5";
    const std::vector<std::string> expected{
        "call application ActiveDoc()",
        "call document \"Housing.SLDPRT\" Body()",
        "call body GetFirstFace()",
        "call face \"Face 1\" GetNextFace()",
        "call face \"Face 2\" Select(True)",
        "put face \"Face 2\" MaterialPropertyValues = [" + half + "]",
    };
    EXPECT_EQ(model.Log().Lines(), expected);
}

TEST(CallLog, ACallThatFailsIsRecordedToo) {
    StandInModel model;
    EXPECT_NE(ErrorNumberOf([&] { model.ApplicationObject()->Get("Quit"); }), 0);
    EXPECT_EQ(model.Log().Lines(), std::vector<std::string>{"call application Quit()"});
}

TEST(CallLog, TheListenerHearsOfACallBeforeItIsCarriedOut) {
    StandInModel model;
    std::vector<std::size_t> selectedBefore;
    model.Log().SetListener([&](const CallRecord&) {
        selectedBefore.push_back(model.Part().CurrentSelection().Items().size());
    });
    StandInClient(model).Face(0)->Invoke("Select", {true});
    EXPECT_EQ(selectedBefore, (std::vector<std::size_t>{0, 0, 0, 0}));
    EXPECT_EQ(model.Part().CurrentSelection().Items().size(), 1U);
}

TEST(CallLog, ALimitForgetsTheOldestButCountsAll) {
    CallLog log;
    log.SetLimit(10);
    for (int i = 0; i < 100; ++i)
        log.Add({CallKind::Call, "object", std::to_string(i), ""});
    EXPECT_EQ(log.Total(), 100U);
    EXPECT_LE(log.Records().size(), 20U);
    EXPECT_GE(log.Records().size(), 10U);
    EXPECT_EQ(log.Records().back().member, "99");
}

} // namespace
