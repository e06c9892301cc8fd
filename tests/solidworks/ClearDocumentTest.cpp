// Rules: Clearing colors
#include "tests/solidworks/OperationTest.h"

namespace {

using Lines = std::vector<std::string>;

class ClearColorPart : public OperationTest {
protected:
    ClearColorPart() { Start("features=2,faces=2"); }

    std::string Calls() { return CallsOf(&modSldTools::SWXClearColorPart); }
    // The user presses Stop while the events before this item are processed; items count from 1.
    void StopAtItem(int item) {
        events.onEvents = [this, item] { stopFlag = stopFlag || events.count == item; };
    }
};

class ClearColorAssembly : public ClearColorPart {
protected:
    ClearColorAssembly() { Start("assembly"); }

    std::string Calls() { return CallsOf(&modSldTools::SWXClearColorAssembly); }
};

TEST_F(ClearColorPart, FeaturesAreClearedThenFaces) {
    FeatureAt(1)->SetSuppressed(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(FeatureAt(1)->IsSuppressed());
    EXPECT_FALSE(FeatureAt(0)->IsSuppressed());
}

TEST_F(ClearColorPart, EveryFeatureAndFaceLosesItsColor) {
    Start("default");
    tools->SWXClearColorPart();
    for (const auto& feature : model->Part().Features())
        EXPECT_EQ(feature->Color(), std::nullopt) << feature->Name();
    for (const auto& face : model->Part().Faces())
        EXPECT_EQ(face->Color(), std::nullopt) << face->Name();
    EXPECT_NE(model->Part().Color(), std::nullopt) << "the document keeps its own";
}

TEST_F(ClearColorPart, EverySingleItemIsSelectedAloneWhenItIsCleared) {
    model->Log().SetListener([this](const CallRecord& call) {
        if (call.member.starts_with("Selected")) {
            EXPECT_EQ(model->Part().CurrentSelection().Items().size(), 1U);
        }
    });
    FaceAt(0)->Select(true);
    FaceAt(1)->Select(true);
    tools->SWXClearColorPart();
}

TEST_F(ClearColorPart, PartWithoutFeaturesStillWalksItsFaces) {
    Start("features=0,faces=1");
    ExpectTranscript(Calls());
    EXPECT_EQ(progress.calls, (Lines{"show <62> 0..1", "value 1", "refresh", "hide"}));
}

TEST_F(ClearColorPart, PartWithoutABodyIsRefusedBeforeAnythingIsDone) {
    Start("part-without-body");
    ExpectTranscript(Calls());
    EXPECT_TRUE(progress.calls.empty());
}

TEST_F(ClearColorPart, ProgressCountsFeaturesAndFaces) {
    tools->SWXClearColorPart();
    EXPECT_EQ(progress.calls, (Lines{"show <62> 0..4", "value 1", "refresh", "value 2", "refresh",
                                     "value 3", "refresh", "value 4", "refresh", "hide"}));
    EXPECT_EQ(events.count, 4) << "events are processed once before every item";
}

TEST_F(ClearColorPart, WindowIsTakenDownBeforeTheRebuild) {
    bool shownAtRebuild = true;
    model->Log().SetListener([&](const CallRecord& call) {
        if (call.member == "EditRebuild")
            shownAtRebuild = progress.isShown;
    });
    tools->SWXClearColorPart();
    EXPECT_FALSE(shownAtRebuild);
}

TEST_F(ClearColorPart, StopBeforeTheFirstItemTouchesNothing) {
    StopAtItem(1);
    ExpectTranscript(Calls());
    EXPECT_EQ(progress.calls, (Lines{"show <62> 0..4", "hide"}));
}

TEST_F(ClearColorPart, StopAfterTheFirstFeatureLeavesTheFacesUntouched) {
    StopAtItem(2);
    ExpectTranscript(Calls());
    EXPECT_EQ(progress.calls, (Lines{"show <62> 0..4", "value 1", "refresh", "hide"}));
}

TEST_F(ClearColorPart, StopAmongTheFacesLeavesTheOthersUntouched) {
    FaceAt(0)->SetColor(MaterialValues{});
    FaceAt(1)->SetColor(MaterialValues{});
    StopAtItem(4);
    ExpectTranscript(Calls());
    EXPECT_EQ(FaceAt(0)->Color(), std::nullopt);
    EXPECT_NE(FaceAt(1)->Color(), std::nullopt);
    EXPECT_EQ(model->Part().RebuildCount(), 0);
}

TEST_F(ClearColorPart, StopIsSeenWhileABusySolidWorksIsAskedAgain) {
    FailNext("IsSuppressed", "busy:always");
    StopAtItem(4); // before the item, and then after each rejection
    EXPECT_EQ(tools->SWXClearColorPart(), "ProgressStopped");
    EXPECT_EQ(model->Gate().RejectedCalls(), 3U);
    EXPECT_FALSE(progress.isShown);
    EXPECT_EQ(model->Gate().LiveObjects(), 0U);
}

TEST_F(ClearColorPart, BusyRebuildAfterTheWalkIsNoMoreStopped) {
    stopFlag = false;
    FailNext("EditRebuild", "busy:3");
    model->Log().SetListener([&](const CallRecord&) { stopFlag = !progress.isShown; });
    EXPECT_EQ(tools->SWXClearColorPart(), "okay");
    EXPECT_EQ(model->Gate().RejectedCalls(), 3U);
    EXPECT_EQ(model->Part().RebuildCount(), 1);
}

TEST_F(ClearColorPart, CountsThatNoNumberHoldsTogetherFillTheWholeBar) {
    automation->onAnswer = [](const std::string& member, AutomationValue& answer) {
        if (member == "GetFaceCount" || member == "GetFeatureCount")
            answer = std::int32_t{2'000'000'000};
    };
    EXPECT_EQ(tools->SWXClearColorPart(), "okay");
    EXPECT_EQ(progress.calls.front(), "show <62> 0..2147483647");
}

TEST_F(ClearColorPart, StopOfAnEarlierWalkIsForgotten) {
    stopFlag = true;
    EXPECT_EQ(tools->SWXClearColorPart(), "okay");
    EXPECT_FALSE(stopFlag);
}

TEST_F(ClearColorPart, StopFlagIsClearedAlsoWithoutSolidWorks) {
    stopFlag = true;
    service->SetRunning(false);
    EXPECT_EQ(tools->SWXClearColorPart(), "NoSolidWorksFound");
    EXPECT_FALSE(stopFlag);
    stopFlag = true;
    EXPECT_EQ(tools->SWXClearColorAssembly(), "NoSolidWorksFound");
    EXPECT_FALSE(stopFlag);
}

TEST_F(ClearColorAssembly, TheDirectChildrenOfTheRootAreClearedAndNoOthers) {
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Cover-1")->Color(), std::nullopt);
    EXPECT_NE(ComponentNamed("Latch-1")->Children().front()->Color(), std::nullopt)
        << "the components of a sub-assembly keep their colors";
    EXPECT_EQ(progress.calls,
              (Lines{"show <63> 0..6", "value 0", "refresh", "value 1", "refresh", "value 2",
                     "refresh", "value 3", "refresh", "value 4", "refresh", "value 5", "refresh",
                     "value 6", "refresh", "hide"}));
}

TEST_F(ClearColorAssembly, AssemblyWithoutChildrenIsRebuilt) {
    Start("empty-assembly");
    ExpectTranscript(Calls());
    EXPECT_FALSE(progress.isShown);
}

TEST_F(ClearColorAssembly, EmptyAnswerForTheChildrenIsNoChildren) {
    FailNext("GetChildren", "empty");
    ExpectTranscript(Calls());
}

TEST_F(ClearColorAssembly, NothingAmongTheChildrenIsAnErrorThatNamesThem) {
    automation->onAnswer = [](const std::string& member, AutomationValue& value) {
        if (member == "GetChildren")
            std::get<AutomationArray>(value.data).at(2) = AutomationObjectPtr();
    };
    model->Log().Clear();
    EXPECT_EQ(ErrorOf([&] { tools->SWXClearColorAssembly(); }),
              "SolidWorks gave no object (GetChildren)");
    ExpectTranscript(LoggedCalls());
    EXPECT_FALSE(progress.isShown);
    EXPECT_EQ(model->Gate().LiveObjects(), 0U);
}

TEST_F(ClearColorAssembly, AssemblyWithoutARootIsRebuilt) {
    Start("no-root");
    ExpectTranscript(Calls());
    EXPECT_TRUE(progress.calls.empty());
}

TEST_F(ClearColorAssembly, OldRevisionIsRefusedBeforeTheDocumentIsLookedAt) {
    Start("assembly,old-revision,no-document");
    ExpectTranscript(Calls());
}

TEST_F(ClearColorAssembly, RevisionNineIsEnough) {
    Scenario scenario;
    scenario.active = DocumentType::Assembly;
    scenario.revision = "9.0";
    Start(scenario);
    EXPECT_EQ(tools->SWXClearColorAssembly(), "okay");
}

TEST_F(ClearColorAssembly, StopLeavesTheOtherComponentsUntouchedAndRebuildsNothing) {
    StopAtItem(3);
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Cover-1")->Color(), std::nullopt);
    EXPECT_NE(ComponentNamed("Screw-2")->Color(), std::nullopt);
    EXPECT_EQ(progress.calls,
              (Lines{"show <63> 0..6", "value 0", "refresh", "value 1", "refresh", "hide"}));
}

TEST_F(ClearColorAssembly, StopIsSeenWhileABusySolidWorksIsAskedAgain) {
    FailNext("RemoveMaterialProperty", "busy:always");
    StopAtItem(2);
    EXPECT_EQ(tools->SWXClearColorAssembly(), "ProgressStopped");
    EXPECT_EQ(model->Gate().RejectedCalls(), 1U);
    EXPECT_FALSE(progress.isShown);
}

} // namespace
