#include "solidworks/modSldTools.h"

#include "standin/model/StandInService.h"
#include "tests/fakes/FakeProgress.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"
#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

// The operations on the stand-in's model in process; what is compared is the log of all calls.
class modSldToolsTest : public testing::Test {
protected:
    modSldToolsTest() { Start("default"); }

    void Start(const std::string& scenario) {
        tools.reset();
        service.reset();
        model = std::make_unique<StandInModel>(scenario);
        service = std::make_unique<StandInService>(*model);
        tools = std::make_unique<modSldTools>(
            modSldTools::Ports{*service, prompts, texts, progress, events, stopFlag});
    }

    // The calls that the operation makes.
    Lines CallsOf(const std::function<void()>& operation) {
        model->Log().Clear();
        operation();
        return model->Log().Lines();
    }
    // How often each member is called, without objects and arguments.
    Lines MembersOf(const std::function<void()>& operation) {
        model->Log().Clear();
        operation();
        Lines members;
        for (const CallRecord& call : model->Log().Records())
            members.push_back((call.kind == CallKind::Put ? "put " : "") + call.member);
        return members;
    }
    void SelectFace(int index, bool append = false) {
        StandInClient(*model).Face(index)->Invoke("Select", {append});
    }
    void SelectFeature(int index, bool append = false) {
        StandInClient(*model).Feature(index)->Invoke("Select", {append});
    }
    void SelectComponent(std::size_t index, bool append = false) {
        StandInClient(*model).Child(index)->Invoke("Select", {append});
    }

    FakePrompts prompts;
    FakeTexts texts;
    FakeProgress progress;
    FakeEventPump events;
    bool stopFlag = false;
    std::unique_ptr<StandInModel> model;
    std::unique_ptr<StandInService> service;
    std::unique_ptr<modSldTools> tools;
    std::string result;
    ColorRecord color{"c", "", "", false, {255, 0, 51, 100, 50, 25, 10, 0, 1}, "c"};
};

const std::string kArray = "[1, 0, 0.20000000000000001, 1, 0.5, 0.25, 0.10000000000000001, 0, "
                           "0.01]";

TEST_F(modSldToolsTest, EveryOperationAttachesAnewAndHoldsNothingAfterwards) {
    SelectFace(0);
    tools->SWXGetColor(color);
    tools->SWXSetColor(color);
    tools->SWXClearColor();
    tools->SWXClearColorPart();
    EXPECT_EQ(model->Gate().LiveObjects(), 0U);
}

TEST_F(modSldToolsTest, GetColorWithNothingSelectedReadsTheDocument) {
    EXPECT_EQ(MembersOf([&] { result = tools->SWXGetColor(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "MaterialPropertyValues"}));
    EXPECT_EQ(result, "");
    EXPECT_EQ(color.name, "Neuer Farbwert");
}

TEST_F(modSldToolsTest, GetColorReadsAColouredFace) {
    SelectFace(0);
    StandInClient(*model).Face(0)->Put("MaterialPropertyValues", std::vector<double>(9, 0.2));
    EXPECT_EQ(MembersOf([&] { result = tools->SWXGetColor(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "GetSelectedObject3", "GetSelectedObjectType2", "MaterialPropertyValues"}));
    EXPECT_EQ(result, "");
    EXPECT_EQ(color.values, (ColorValueArray{51, 51, 51, 20, 20, 20, 20, 20, 20}));
}

TEST_F(modSldToolsTest, GetColorLooksAtTheFirstSelectedObjectAlone) {
    StandInClient(*model).Face(0)->Put("MaterialPropertyValues", std::vector<double>(9, 0.2));
    StandInClient(*model).Face(1)->Put("MaterialPropertyValues", std::vector<double>(9, 0.4));
    SelectFace(0);
    SelectFace(1, true);
    tools->SWXGetColor(color);
    EXPECT_EQ(color.values[0], 51);
}

TEST_F(modSldToolsTest, GetColorOfAnUncolouredFaceAsksItsFeatureThenTheDocument) {
    Start("no-colors");
    SelectFace(0);
    EXPECT_EQ(MembersOf([&] { result = tools->SWXGetColor(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "GetSelectedObject3", "GetSelectedObjectType2", "MaterialPropertyValues",
                     "GetFeature", "GetMaterialPropertyValues", "MaterialPropertyValues"}));
    EXPECT_EQ(result, "NoColorValueFound: 2");
}

TEST_F(modSldToolsTest, GetColorOfAFeatureAsksItThenTheDocument) {
    Start("no-colors");
    SelectFeature(0);
    EXPECT_EQ(MembersOf([&] { result = tools->SWXGetColor(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "GetSelectedObject3", "GetSelectedObjectType2", "GetMaterialPropertyValues",
                     "MaterialPropertyValues"}));
    EXPECT_EQ(result, "NoColorValueFound: 22");
}

TEST_F(modSldToolsTest, GetColorOfAnUncolouredComponentAsksItsModel) {
    Start("assembly");
    StandInClient(*model).Child(0)->Invoke("RemoveMaterialProperty", {});
    SelectComponent(0);
    EXPECT_EQ(MembersOf([&] { result = tools->SWXGetColor(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "GetSelectedObject3", "GetSelectedObjectType2", "MaterialPropertyValues",
                     "GetModelDoc", "MaterialPropertyValues"}));
    EXPECT_EQ(result, "");
}

TEST_F(modSldToolsTest, GetColorOfAnEdgeNamesItsTypeAndLeavesTheRecord) {
    model->Part().Edges().front()->Select(false);
    const ColorRecord before = color;
    EXPECT_EQ(tools->SWXGetColor(color), "NoValidSelection: 1");
    EXPECT_EQ(color, before);
}

TEST_F(modSldToolsTest, SetColorWithNothingSelectedSetsTheDocumentAndRebuilds) {
    const Lines calls = CallsOf([&] { result = tools->SWXSetColor(color); });
    EXPECT_EQ(result, "okay");
    ASSERT_EQ(calls.size(), 6U);
    EXPECT_NE(calls[4].find("MaterialPropertyValues = " + kArray), std::string::npos) << calls[4];
    EXPECT_NE(calls[5].find("EditRebuild()"), std::string::npos) << calls[5];
}

TEST_F(modSldToolsTest, SetColorColorsFacesAndFeaturesAndRebuildsOnce) {
    SelectFace(0);
    SelectFeature(0, true);
    EXPECT_EQ(MembersOf([&] { result = tools->SWXSetColor(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "GetSelectedObject3", "GetSelectedObjectType2", "put MaterialPropertyValues",
                     "GetSelectedObject3", "GetSelectedObjectType2", "SetMaterialPropertyValues",
                     "EditRebuild"}));
    EXPECT_EQ(result, "okay");
}

TEST_F(modSldToolsTest, SetColorReportsAnEdgeAndColorsTheFaces) {
    SelectFace(0);
    SelectFace(1, true);
    SelectFace(2, true);
    model->Part().Edges().front()->Select(true);
    EXPECT_EQ(tools->SWXSetColor(color), "\r\nNoValidSelection: 1");
    for (int face = 0; face < 3; ++face)
        EXPECT_EQ(std::get<std::vector<double>>(
                      StandInClient(*model).Face(face)->Get("MaterialPropertyValues").data)[2],
                  0.2);
}

TEST_F(modSldToolsTest, SetColorComponentWithNothingSelectedColorsTheAssembly) {
    Start("assembly");
    EXPECT_EQ(MembersOf([&] { result = tools->SWXSetColorComponent(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "put MaterialPropertyValues", "EditRebuild"}));
    EXPECT_EQ(result, "okay");
}

TEST_F(modSldToolsTest, SetColorComponentColorsTheComponentOfEachSelectedObject) {
    Start("assembly");
    SelectComponent(0);
    SelectComponent(1, true);
    EXPECT_EQ(MembersOf([&] { result = tools->SWXSetColorComponent(color); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "GetSelectedObjectsComponent", "put MaterialPropertyValues",
                     "GetSelectedObjectsComponent", "put MaterialPropertyValues", "EditRebuild"}));
}

TEST_F(modSldToolsTest, ClearColorOfAFaceSelectsItAndUsesThePartsProperties) {
    SelectFace(0);
    const Lines calls = CallsOf([&] { result = tools->SWXClearColor(); });
    EXPECT_EQ(result, "okay");
    ASSERT_EQ(calls.size(), 9U);
    EXPECT_NE(calls[5].find("Select(True)"), std::string::npos) << calls[5];
    EXPECT_NE(calls[7].find("SelectedFaceProperties(0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, True, \"\")"),
              std::string::npos)
        << calls[7];
}

TEST_F(modSldToolsTest, ClearColorOfAFeatureKeepsItsSuppressionState) {
    SelectFeature(0);
    const Lines calls = CallsOf([&] { result = tools->SWXClearColor(); });
    ASSERT_EQ(calls.size(), 10U);
    EXPECT_NE(calls[7].find("IsSuppressed()"), std::string::npos) << calls[7];
    EXPECT_NE(calls[8].find(
                  "SelectedFeatureProperties(0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, True, False, \"\")"),
              std::string::npos)
        << calls[8];
}

TEST_F(modSldToolsTest, ClearColorWithNothingSelectedOnlyRebuilds) {
    EXPECT_EQ(MembersOf([&] { result = tools->SWXClearColor(); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "EditRebuild"}));
    EXPECT_EQ(result, "okay");
}

TEST_F(modSldToolsTest, ClearColorOfComponentsNeedsRevisionNine) {
    Start("assembly,old-revision");
    SelectComponent(0);
    SelectComponent(1, true);
    EXPECT_EQ(tools->SWXClearColor(), "\r\n<8>\r\n<8>") << "once for each component";
    EXPECT_EQ(tools->SWXClearComponentColor(), "\r\n<8>\r\n<8>");
    Start("assembly");
    SelectComponent(0);
    EXPECT_EQ(MembersOf([&] { result = tools->SWXClearComponentColor(); }),
              (Lines{"ActiveDoc", "GetType", "SelectionManager", "GetSelectedObjectCount",
                     "GetSelectedObjectsComponent", "RevisionNumber", "RemoveMaterialProperty",
                     "EditRebuild"}));
    EXPECT_EQ(result, "okay");
}

TEST_F(modSldToolsTest, ClearColorPartWalksFeaturesThenFaces) {
    Start("faces=2,features=2");
    EXPECT_EQ(MembersOf([&] { result = tools->SWXClearColorPart(); }),
              (Lines{"ActiveDoc",
                     "GetType",
                     "Body",
                     "ClearSelection",
                     "GetFaceCount",
                     "GetFeatureCount",
                     "FirstFeature",
                     "Select",
                     "IsSuppressed",
                     "SelectedFeatureProperties",
                     "GetNextFeature",
                     "Select",
                     "IsSuppressed",
                     "SelectedFeatureProperties",
                     "GetNextFeature",
                     "GetFirstFace",
                     "Select",
                     "SelectedFaceProperties",
                     "GetNextFace",
                     "Select",
                     "SelectedFaceProperties",
                     "GetNextFace",
                     "EditRebuild"}));
    EXPECT_EQ(result, "okay");
    EXPECT_EQ(progress.calls, (Lines{"show <62> 0..4", "value 1", "refresh", "value 2", "refresh",
                                     "value 3", "refresh", "value 4", "refresh", "hide"}));
    EXPECT_EQ(events.count, 4);
}

TEST_F(modSldToolsTest, ClearColorPartWithoutABodySaysSo) {
    Start("part-without-body");
    EXPECT_EQ(tools->SWXClearColorPart(), "NoPartBody");
    EXPECT_TRUE(progress.calls.empty());
}

TEST_F(modSldToolsTest, WalkStartsWithTheStopFlagCleared) {
    stopFlag = true;
    EXPECT_EQ(tools->SWXClearColorPart(), "okay");
    EXPECT_FALSE(stopFlag);
}

TEST_F(modSldToolsTest, ClearColorAssemblyClearsTheDirectChildrenOfTheRoot) {
    Start("assembly,components=3");
    const Lines expected{"RevisionNumber",
                         "ActiveDoc",
                         "GetType",
                         "ClearSelection",
                         "GetActiveConfiguration",
                         "GetRootComponent",
                         "GetChildren",
                         "RemoveMaterialProperty",
                         "RemoveMaterialProperty",
                         "RemoveMaterialProperty",
                         "EditRebuild"};
    EXPECT_EQ(MembersOf([&] { result = tools->SWXClearColorAssembly(); }), expected);
    EXPECT_EQ(result, "okay");
    EXPECT_EQ(progress.calls, (Lines{"show <63> 0..2", "value 0", "refresh", "value 1", "refresh",
                                     "value 2", "refresh", "hide"}));
}

TEST_F(modSldToolsTest, AssemblyWithoutARootOrWithoutChildrenIsRebuiltAndOkay) {
    for (const char* scenario : {"assembly,no-root", "assembly,empty-assembly"}) {
        Start(scenario);
        EXPECT_EQ(MembersOf([&] { result = tools->SWXClearColorAssembly(); }).back(),
                  "EditRebuild");
        EXPECT_EQ(result, "okay") << scenario;
        EXPECT_FALSE(progress.isShown);
    }
}

TEST_F(modSldToolsTest, StandardColorsAreReadByIndexFromZero) {
    std::vector<ColorRecord> colors;
    const Lines calls = CallsOf([&] { result = tools->SWXGetStandardColors(colors); });
    EXPECT_EQ(result, "Okay");
    ASSERT_EQ(colors.size(), 12U);
    EXPECT_EQ(calls.size(), 3U + 2 * 12) << "document, table, count, then name and colour";
    EXPECT_NE(calls[3].find("GetNameAtIndex(0)"), std::string::npos) << calls[3];
    EXPECT_NE(calls[4].find("GetColorRefAtIndex(0)"), std::string::npos) << calls[4];
}

TEST_F(modSldToolsTest, DifferingSizeAsksOnceAndCancelEnds) {
    std::vector<ColorRecord> colors;
    tools->SWXGetStandardColors(colors);
    colors.emplace_back();
    prompts.answers = {Answer::Cancel};
    EXPECT_EQ(tools->SWXSetStandardColors(colors), "NoValidColorScheme");
    EXPECT_EQ(prompts.messages,
              (std::vector<FakePrompts::Message>{{"<72>\r\n<74>", 65, "TNT4SWX"}}));
}

TEST_F(modSldToolsTest, DifferingNameAsksAndGoingOnSkipsThatEntry) {
    std::vector<ColorRecord> colors;
    tools->SWXGetStandardColors(colors);
    colors[1].name = "renamed";
    for (ColorRecord& entry : colors)
        entry.values = {64, 128, 255, 0, 0, 0, 0, 0, 0};
    const auto before = StandInClient(*model).Document()->Get("GetColorTable").AsObject();
    const std::int32_t kept = before->Invoke("GetColorRefAtIndex", {std::int32_t{1}}).AsInt32();
    EXPECT_EQ(tools->SWXSetStandardColors(colors), "Okay");
    EXPECT_EQ(prompts.messages,
              (std::vector<FakePrompts::Message>{{"<73>\r\n<74>", 65, "TNT4SWX"}}));
    EXPECT_EQ(before->Invoke("GetColorRefAtIndex", {std::int32_t{0}}).AsInt32(), 0xFF8040);
    EXPECT_EQ(before->Invoke("GetColorRefAtIndex", {std::int32_t{1}}).AsInt32(), kept);
    EXPECT_EQ(before->Invoke("GetColorRefAtIndex", {std::int32_t{11}}).AsInt32(), 0xFF8040);
}

TEST_F(modSldToolsTest, DifferingNameAndCancelEndsAtOnce) {
    std::vector<ColorRecord> colors;
    tools->SWXGetStandardColors(colors);
    colors[0].name = "renamed";
    prompts.answers = {Answer::Cancel};
    EXPECT_EQ(tools->SWXSetStandardColors(colors), "NoValidColorName");
}

TEST_F(modSldToolsTest, FewerColorsThanEntriesIsAnErrorAfterThoseWereWritten) {
    std::vector<ColorRecord> colors;
    tools->SWXGetStandardColors(colors);
    colors.resize(2);
    colors[1].values = {1, 2, 3, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(ErrorNumberOf([&] { tools->SWXSetStandardColors(colors); }),
              ErrorNumber::SubscriptOutOfRange);
    const auto table = StandInClient(*model).Document()->Get("GetColorTable").AsObject();
    EXPECT_EQ(table->Invoke("GetColorRefAtIndex", {std::int32_t{1}}).AsInt32(), 0x030201);
}

} // namespace
