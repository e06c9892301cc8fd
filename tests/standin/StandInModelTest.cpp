// Rules: Stand-in for SolidWorks
#include "tests/standin/StandInClient.h"

#include "standin/model/StandInService.h"

#include <gtest/gtest.h>

namespace {

const std::vector<double> kNine{0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9};

class StandInModelTest : public testing::Test {
protected:
    void Start(const std::string& scenario) {
        client_.reset();
        model_ = std::make_unique<StandInModel>(scenario);
        client_ = std::make_unique<StandInClient>(*model_);
    }

    std::unique_ptr<StandInModel> model_ = std::make_unique<StandInModel>("default");
    std::unique_ptr<StandInClient> client_ = std::make_unique<StandInClient>(*model_);
};

TEST_F(StandInModelTest, StartsWithAPartOfFifteenFeaturesAndFourteenFaces) {
    EXPECT_EQ(client_->Document()->Get("GetType").AsInt32(), 1);
    EXPECT_EQ(client_->Document()->Get("GetFeatureCount").AsInt32(), 15);
    EXPECT_EQ(client_->Document()->Get("Body").AsObject()->Get("GetFaceCount").AsInt32(), 14);
    EXPECT_EQ(client_->Application()->Get("RevisionNumber").AsString(), "12.5.0");
}

TEST_F(StandInModelTest, FeaturesAreWalkedWithPlanesSketchesAndFoldersAmongThem) {
    std::vector<std::string> types;
    for (AutomationObjectPtr feature = client_->Document()->Get("FirstFeature").AsObject(); feature;
         feature = feature->Get("GetNextFeature").AsObject())
        types.push_back(feature->Get("GetTypeName").AsString());
    EXPECT_EQ(types, (std::vector<std::string>{"CommentsFolder", "RefPlane", "RefPlane", "RefPlane",
                                               "OriginProfileFeature", "ProfileFeature",
                                               "Extrusion", "ProfileFeature", "Extrusion",
                                               "FtrFolder", "ProfileFeature", "Extrusion",
                                               "Extrusion", "Extrusion", "Extrusion"}));
}

TEST_F(StandInModelTest, EdgesVerticesPlanesAndSketchesTellTheirTypes) {
    const auto typeOf = [&](Entity& entity) {
        entity.Select(false);
        return client_->Selection()->Invoke("GetSelectedObjectType2", {1}).AsInt32();
    };
    PartDocument& part = model_->Part();
    EXPECT_EQ(typeOf(*part.Edges().front()), 1);
    EXPECT_EQ(typeOf(*part.Vertices().front()), 3);
    EXPECT_EQ(typeOf(*part.ChainAt(1)), 4);
    EXPECT_EQ(typeOf(*part.ChainAt(5)), 9);
}

TEST_F(StandInModelTest, APartHasAConfigurationWithoutARoot) {
    const AutomationObjectPtr configuration =
        client_->Document()->Get("GetActiveConfiguration").AsObject();
    ASSERT_NE(configuration, nullptr);
    EXPECT_EQ(configuration->Get("GetRootComponent").AsObject(), nullptr);
}

TEST_F(StandInModelTest, TheLastFeatureAndTheLastFaceHaveNoNext) {
    EXPECT_EQ(client_->Feature(5)->Get("GetNextFeature").AsObject(), nullptr);
    EXPECT_EQ(client_->Face(13)->Get("GetNextFace").AsObject(), nullptr);
}

TEST_F(StandInModelTest, TheSameFaceIsTheSameObject) {
    const AutomationObjectPtr face = client_->Face(4);
    EXPECT_EQ(client_->Face(4), face);
    EXPECT_NE(client_->Face(5), face);
}

TEST_F(StandInModelTest, AFaceCanBeColoredAndReadBackExactly) {
    client_->Face(0)->Put("MaterialPropertyValues", kNine);
    const AutomationValue read = client_->Face(0)->Get("MaterialPropertyValues");
    EXPECT_EQ(std::get<std::vector<double>>(read.data), kNine);
}

TEST_F(StandInModelTest, AnUncoloredFaceReadsAsEmptyAndItsFeatureCarriesTheColor) {
    const AutomationObjectPtr face = client_->Face(8);
    EXPECT_TRUE(face->Get("MaterialPropertyValues").IsEmpty());
    const AutomationObjectPtr feature = face->Get("GetFeature").AsObject();
    EXPECT_EQ(feature->Get("Name").AsString(), "Boss");
    EXPECT_FALSE(feature->Get("GetMaterialPropertyValues").IsEmpty());
}

TEST_F(StandInModelTest, AFeatureTakesItsColorThroughAMethod) {
    client_->Feature(0)->Invoke("SetMaterialPropertyValues", {kNine});
    const AutomationValue read = client_->Feature(0)->Get("GetMaterialPropertyValues");
    EXPECT_EQ(std::get<std::vector<double>>(read.data), kNine);
    EXPECT_EQ(ErrorNumberOf([&] { client_->Feature(0)->Put("MaterialPropertyValues", kNine); }),
              ErrorNumber::NoSuchMember);
}

TEST_F(StandInModelTest, AnUnknownMemberIsAnErrorThatNamesIt) {
    try {
        client_->Face(0)->Get("Weight");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::NoSuchMember);
        EXPECT_EQ(error.Member(), "Weight");
    }
}

TEST_F(StandInModelTest, AWrongColorArrayIsAnErrorThatNamesTheMember) {
    try {
        client_->Face(0)->Put("MaterialPropertyValues", std::vector<double>(8));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
        EXPECT_EQ(error.Member(), "MaterialPropertyValues");
    }
}

TEST_F(StandInModelTest, AWrongNumberOfArgumentsIsAnError) {
    EXPECT_EQ(ErrorNumberOf([&] { client_->Face(0)->Invoke("Select", {}); }), kWrongArgumentCount);
    EXPECT_EQ(ErrorNumberOf([&] { client_->Face(0)->Invoke("GetFeature", {1}); }),
              kWrongArgumentCount);
}

TEST_F(StandInModelTest, SelectionIndexesStartAtOne) {
    client_->Face(0)->Invoke("Select", {false});
    client_->Feature(1)->Invoke("Select", {true});
    const AutomationObjectPtr selection = client_->Selection();
    EXPECT_EQ(selection->Get("GetSelectedObjectCount").AsInt32(), 2);
    EXPECT_EQ(selection->Invoke("GetSelectedObject3", {0}).AsObject(), nullptr);
    EXPECT_EQ(selection->Invoke("GetSelectedObject3", {1}).AsObject(), client_->Face(0));
    EXPECT_EQ(selection->Invoke("GetSelectedObject3", {2}).AsObject(), client_->Feature(1));
    EXPECT_EQ(selection->Invoke("GetSelectedObject3", {3}).AsObject(), nullptr);
    EXPECT_EQ(selection->Invoke("GetSelectedObjectType2", {1}).AsInt32(), 2);
    EXPECT_EQ(selection->Invoke("GetSelectedObjectType2", {2}).AsInt32(), 22);
    EXPECT_EQ(selection->Invoke("GetSelectedObjectType2", {3}).AsInt32(), 0);
}

TEST_F(StandInModelTest, SelectingWithFalseReplacesTheSelection) {
    client_->Face(0)->Invoke("Select", {true});
    client_->Face(1)->Invoke("Select", {false});
    EXPECT_EQ(client_->Selection()->Get("GetSelectedObjectCount").AsInt32(), 1);
    EXPECT_EQ(client_->Selection()->Invoke("GetSelectedObject3", {1}).AsObject(), client_->Face(1));
}

TEST_F(StandInModelTest, SelectingAgainWithTrueKeepsThePlaces) {
    client_->Face(0)->Invoke("Select", {true});
    client_->Face(1)->Invoke("Select", {true});
    client_->Face(0)->Invoke("Select", {true});
    EXPECT_EQ(client_->Selection()->Get("GetSelectedObjectCount").AsInt32(), 2);
    EXPECT_EQ(client_->Selection()->Invoke("GetSelectedObject3", {1}).AsObject(), client_->Face(0));
}

TEST_F(StandInModelTest, ClearSelectionLeavesNothingSelected) {
    client_->Face(0)->Invoke("Select", {true});
    client_->Document()->Get("ClearSelection");
    EXPECT_EQ(client_->Selection()->Get("GetSelectedObjectCount").AsInt32(), 0);
}

TEST_F(StandInModelTest, AnEdgeIsOfTypeOneAndCarriesNoColor) {
    ASSERT_TRUE(model_->Part().Edges().front()->Select(false));
    const AutomationObjectPtr edge =
        client_->Selection()->Invoke("GetSelectedObject3", {1}).AsObject();
    EXPECT_EQ(client_->Selection()->Invoke("GetSelectedObjectType2", {1}).AsInt32(), 1);
    EXPECT_EQ(ErrorNumberOf([&] { edge->Get("MaterialPropertyValues"); }),
              ErrorNumber::NoSuchMember);
}

AutomationArray FaceProperties(bool usePartProperties, const char* name) {
    return {0x0000FF, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, usePartProperties, name};
}

TEST_F(StandInModelTest, SelectedFacePropertiesColorTheSelectedFaces) {
    client_->Face(0)->Invoke("Select", {false});
    EXPECT_TRUE(client_->Document()
                    ->Invoke("SelectedFaceProperties", FaceProperties(false, ""))
                    .AsBoolean());
    EXPECT_EQ(model_->Part().FaceAt(0)->Color(),
              (MaterialValues{1, 0, 0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6}));
}

TEST_F(StandInModelTest, SelectedFacePropertiesTakeTheColorOffAndKeepTheNameWhenItIsEmpty) {
    client_->Face(2)->Invoke("Select", {false});
    client_->Document()->Invoke("SelectedFaceProperties", FaceProperties(true, ""));
    EXPECT_EQ(model_->Part().FaceAt(2)->Color(), std::nullopt);
    EXPECT_EQ(model_->Part().FaceAt(2)->Name(), "Face 3");
    EXPECT_NE(model_->Part().FaceAt(7)->Color(), std::nullopt);
}

TEST_F(StandInModelTest, SelectedFacePropertiesWithoutASelectedFaceAnswerFalse) {
    EXPECT_FALSE(client_->Document()
                     ->Invoke("SelectedFaceProperties", FaceProperties(true, ""))
                     .AsBoolean());
}

TEST_F(StandInModelTest, SelectedFeaturePropertiesSetTheSuppressionToo) {
    AutomationArray arguments = FaceProperties(true, "");
    arguments.insert(arguments.begin() + 8, true);
    client_->Feature(2)->Invoke("Select", {false});
    client_->Document()->Invoke("SelectedFeatureProperties", arguments);
    EXPECT_TRUE(client_->Feature(2)->Get("IsSuppressed").AsBoolean());
    EXPECT_TRUE(client_->Feature(2)->Get("GetMaterialPropertyValues").IsEmpty());
}

TEST_F(StandInModelTest, TheAssemblyHasSevenComponentsOneOfThemWithoutModel) {
    Start("assembly");
    const AutomationValue children = client_->Root()->Get("GetChildren");
    EXPECT_EQ(client_->Document()->Get("GetType").AsInt32(), 2);
    EXPECT_EQ(std::get<AutomationArray>(children.data).size(), 7U);
    EXPECT_EQ(client_->Child(6)->Get("GetModelDoc").AsObject(), nullptr);
    const AutomationObjectPtr latch = client_->Child(5);
    EXPECT_EQ(latch->Get("GetModelDoc").AsObject()->Get("GetType").AsInt32(), 2);
    EXPECT_EQ(StandInClient::ChildOf(latch, 0)->Get("Name2").AsString(), "Lever-1");
}

TEST_F(StandInModelTest, AComponentLosesItsColor) {
    Start("assembly");
    const AutomationObjectPtr cover = client_->Child(1);
    EXPECT_FALSE(cover->Get("MaterialPropertyValues").IsEmpty());
    cover->Get("RemoveMaterialProperty");
    EXPECT_TRUE(cover->Get("MaterialPropertyValues").IsEmpty());
}

TEST_F(StandInModelTest, ASelectedFaceOfAnAssemblyKnowsItsComponent) {
    Start("assembly");
    const AutomationObjectPtr face = client_->Child(2)
                                         ->Get("GetModelDoc")
                                         .AsObject()
                                         ->Get("Body")
                                         .AsObject()
                                         ->Get("GetFirstFace")
                                         .AsObject();
    EXPECT_TRUE(face->Invoke("Select", {false}).AsBoolean());
    EXPECT_EQ(client_->Selection()->Invoke("GetSelectedObjectsComponent", {1}).AsObject(),
              client_->Child(2));
}

TEST_F(StandInModelTest, ASelectedComponentIsItsOwnComponentAndOfTypeTwenty) {
    Start("assembly");
    client_->Child(1)->Invoke("Select", {false});
    const AutomationObjectPtr selection = client_->Selection();
    EXPECT_EQ(selection->Invoke("GetSelectedObjectType2", {1}).AsInt32(), 20);
    EXPECT_EQ(selection->Invoke("GetSelectedObjectsComponent", {1}).AsObject(), client_->Child(1));
}

TEST_F(StandInModelTest, AFeatureOfTheAssemblyItselfHasNoComponent) {
    Start("assembly");
    client_->Document()->Get("FirstFeature").AsObject()->Invoke("Select", {false});
    EXPECT_EQ(client_->Selection()->Invoke("GetSelectedObjectsComponent", {1}).AsObject(), nullptr);
}

TEST_F(StandInModelTest, AFaceThatTheActiveDocumentDoesNotShowCannotBeSelected) {
    const AutomationObjectPtr face = client_->Face(0);
    model_->Activate(DocumentType::Drawing);
    EXPECT_FALSE(face->Invoke("Select", {false}).AsBoolean());
}

TEST_F(StandInModelTest, OldRevisionsCannotTakeTheColorOffAComponent) {
    Start("old-revision,assembly");
    EXPECT_EQ(client_->Application()->Get("RevisionNumber").AsString(), "8.1.0");
    EXPECT_EQ(ErrorNumberOf([&] { client_->Child(0)->Get("RemoveMaterialProperty"); }),
              ErrorNumber::NoSuchMember);
}

TEST_F(StandInModelTest, TheColorTableHasTwelveNamedColorsFromIndexZero) {
    const AutomationObjectPtr table = client_->Document()->Get("GetColorTable").AsObject();
    EXPECT_EQ(table->Get("GetStandardCount").AsInt32(), 12);
    EXPECT_EQ(table->Invoke("GetNameAtIndex", {5}).AsString(), "Sky blue");
    EXPECT_EQ(table->Invoke("GetColorRefAtIndex", {5}).AsInt32(), 64 + 128 * 256 + 255 * 65536);
    EXPECT_EQ(ErrorNumberOf([&] { table->Invoke("GetNameAtIndex", {12}); }),
              ErrorNumber::SubscriptOutOfRange);
}

TEST_F(StandInModelTest, AnEntryOfTheColorTableCanBeSet) {
    const AutomationObjectPtr table = client_->Document()->Get("GetColorTable").AsObject();
    table->Invoke("SetColorRefAtIndex", {11, 0x123456, 0});
    EXPECT_EQ(table->Invoke("GetColorRefAtIndex", {11}).AsInt32(), 0x123456);
}

TEST_F(StandInModelTest, RebuildsAreCounted) {
    client_->Document()->Get("EditRebuild");
    EXPECT_EQ(model_->Part().RebuildCount(), 1);
}

TEST_F(StandInModelTest, AnObjectOfAClosedModelSaysSo) {
    const AutomationObjectPtr face = client_->Face(0);
    client_.reset();
    model_.reset();
    EXPECT_EQ(ErrorNumberOf([&] { face->Get("GetNextFace"); }), ErrorNumber::ConnectionLost);
}

class CountingObserver final : public ModelObserver {
public:
    void ModelChanged() noexcept override { ++count; }
    int count = 0;
};

TEST_F(StandInModelTest, ObserversHearOfColorsSelectionAndActivation) {
    CountingObserver observer;
    model_->Events().Add(observer);
    client_->Face(0)->Put("MaterialPropertyValues", kNine);
    EXPECT_EQ(observer.count, 1);
    client_->Face(0)->Invoke("Select", {false});
    EXPECT_EQ(observer.count, 2);
    model_->Activate(std::nullopt);
    EXPECT_EQ(observer.count, 3);
    model_->Events().Remove(observer);
    model_->Activate(DocumentType::Part);
    EXPECT_EQ(observer.count, 3);
}

TEST(StandInService, AnswersOnlyForTheRunningApplication) {
    StandInModel model;
    StandInService service(model);
    EXPECT_EQ(service.GetRunningObject("SldWorks.Application"), model.ApplicationObject());
    EXPECT_EQ(service.GetRunningObject("Other.Application"), nullptr);
    service.SetRunning(false);
    EXPECT_EQ(service.GetRunningObject("SldWorks.Application"), nullptr);
}

} // namespace
