// Rules: Clearing colors
#include "tests/solidworks/OperationTest.h"

namespace {

constexpr MaterialValues kOwn{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};

class ClearColor : public OperationTest {
protected:
    std::string Calls() { return CallsOf(&modSldTools::SWXClearColor); }
};

class ClearComponentColor : public OperationTest {
protected:
    ClearComponentColor() { Start("assembly"); }

    std::string Calls() { return CallsOf(&modSldTools::SWXClearComponentColor); }
};

TEST_F(ClearColor, NothingSelectedOnlyRebuilds) {
    ExpectTranscript(Calls());
}

TEST_F(ClearColor, FaceIsSelectedAndGetsThePartsProperties) {
    FaceAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(FaceAt(0)->Color(), std::nullopt);
    EXPECT_EQ(FaceAt(0)->Name(), "Face 1") << "an empty name leaves the name alone";
}

TEST_F(ClearColor, FeatureIsSelectedAndGetsThePartsProperties) {
    FeatureAt(0)->SetColor(kOwn);
    FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(FeatureAt(0)->Color(), std::nullopt);
    EXPECT_FALSE(FeatureAt(0)->IsSuppressed());
}

TEST_F(ClearColor, SuppressedFeatureStaysSuppressed) {
    FeatureAt(0)->SetSuppressed(true);
    FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(FeatureAt(0)->IsSuppressed());
}

// The call works on all that is selected: each feature's own state is told for all of them.
TEST_F(ClearColor, EachSelectedFeaturesOwnSuppressionIsTold) {
    FeatureAt(0)->SetSuppressed(true);
    FeatureAt(0)->Select(false);
    FeatureAt(1)->Select(true);
    const std::string calls = Calls();
    EXPECT_NE(calls.find("0.0, True, True, \"\")"), std::string::npos) << calls;
    EXPECT_EQ(calls.find("0.0, True, False, \"\")"), std::string::npos)
        << "the first call has suppressed the other one too";
    EXPECT_TRUE(FeatureAt(1)->IsSuppressed());
}

TEST_F(ClearColor, ComponentInAPartIsTreatedAsAFeature) {
    model->Part().SelectItem({ComponentNamed("Screw-1"), ComponentNamed("Screw-1")}, false);
    ExpectTranscript(Calls());
}

TEST_F(ClearColor, EdgeIsSelectedAndReported) {
    AnEdge()->Select(true);
    FaceAt(0)->Select(true);
    ExpectTranscript(Calls());
}

TEST_F(ClearColor, SelectionThatIsNoObjectIsReportedWithoutABlankAndTheOthersAreCleared) {
    FaceAt(0)->Select(true);
    FaceAt(1)->Select(true);
    FailNext("GetSelectedObject3", "null");
    ExpectTranscript(Calls());
}

TEST_F(ClearColor, ComponentsFacesAndFeaturesOfAnAssembly) {
    Start("assembly");
    ComponentNamed("Screw-2")->Select(true);
    FaceAt(2)->Select(true);
    model->Assembly().FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Screw-2")->Color(), std::nullopt);
    EXPECT_EQ(FaceAt(2)->Color(), std::nullopt);
}

TEST_F(ClearColor, EdgeInAnAssemblyIsSelectedAndReported) {
    Start("assembly");
    AnEdge()->Select(true);
    ComponentNamed("Screw-2")->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Screw-2")->Color(), std::nullopt);
}

// Any number but 0 says yes, not only the one that a boolean is.
TEST_F(ClearColor, SuppressionThatIsToldAsANumberIsKeptAsABoolean) {
    FeatureAt(0)->Select(true);
    for (const std::int32_t answer : {1, 2, -1, 0}) {
        automation->onAnswer = [&](const std::string& member, AutomationValue& value) {
            if (member == "IsSuppressed")
                value = answer;
        };
        SCOPED_TRACE(answer);
        ExpectTranscript(Calls(), answer != 0 ? "suppressed" : "not suppressed");
    }
}

TEST_F(ClearColor, OldRevisionReportsEachComponentAndStillClearsFaces) {
    Start("assembly,old-revision");
    ComponentNamed("Screw-1")->Select(true);
    FaceAt(2)->Select(true);
    ComponentNamed("Screw-2")->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(FaceAt(2)->Color(), std::nullopt);
    EXPECT_NE(ComponentNamed("Screw-2")->Color(), std::nullopt);
}

TEST_F(ClearComponentColor, NothingSelectedOnlyRebuilds) {
    ExpectTranscript(Calls());
}

TEST_F(ClearComponentColor, TheComponentThatOwnsEachSelectedObjectIsCleared) {
    ComponentNamed("Screw-2")->Select(true);
    FaceAt(2)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Screw-2")->Color(), std::nullopt);
    EXPECT_NE(FaceAt(2)->Color(), std::nullopt);
}

TEST_F(ClearComponentColor, ObjectWithoutAComponentIsReportedWithoutABlank) {
    model->Assembly().FeatureAt(0)->Select(true);
    ComponentNamed("Screw-2")->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Screw-2")->Color(), std::nullopt);
}

TEST_F(ClearComponentColor, OldRevisionReportsEachComponent) {
    Start("assembly,old-revision");
    ComponentNamed("Screw-1")->Select(true);
    ComponentNamed("Screw-2")->Select(true);
    ExpectTranscript(Calls());
}

TEST_F(ClearComponentColor, RevisionIsComparedByItsLeadingNumber) {
    for (const auto& [revision, result] :
         {std::pair{"9.0", "okay"}, std::pair{"9", "okay"}, std::pair{"10.1.2", "okay"},
          std::pair{"8.9.9", "\r\n<8>"}, std::pair{"", "\r\n<8>"}}) {
        Scenario scenario;
        scenario.active = DocumentType::Assembly;
        scenario.revision = revision;
        Start(scenario);
        ComponentNamed("Screw-2")->Select(true);
        EXPECT_EQ(tools->SWXClearComponentColor(), result) << revision;
    }
}

} // namespace
