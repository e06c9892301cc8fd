// Rules: Stand-in for SolidWorks
#include "tests/standin/StandInClient.h"

#include <gtest/gtest.h>

namespace {

TEST(Scenario, NoDocumentLeavesNoneActive) {
    StandInModel model("no-document");
    EXPECT_EQ(StandInClient(model).Document(), nullptr);
}

TEST(Scenario, ADrawingIsOfTypeThreeAndHasAColorTableButNoColor) {
    StandInModel model("drawing");
    const StandInClient client(model);
    EXPECT_EQ(client.Document()->Get("GetType").AsInt32(), 3);
    EXPECT_NE(client.Document()->Get("GetColorTable").AsObject(), nullptr);
    EXPECT_EQ(ErrorNumberOf([&] { client.Document()->Get("MaterialPropertyValues"); }),
              ErrorNumber::NoSuchMember);
}

TEST(Scenario, AnEmptyAssemblyHasARootWithoutChildren) {
    StandInModel model("empty-assembly");
    const AutomationValue children = StandInClient(model).Root()->Get("GetChildren");
    EXPECT_TRUE(std::get<AutomationArray>(children.data).empty());
}

TEST(Scenario, NoRootGivesAConfigurationWithoutRootComponent) {
    StandInModel model("no-root");
    EXPECT_EQ(StandInClient(model).Root(), nullptr);
}

TEST(Scenario, APartWithoutBodyAnswersNothingForIt) {
    StandInModel model("part-without-body");
    EXPECT_EQ(StandInClient(model).Document()->Get("Body").AsObject(), nullptr);
}

TEST(Scenario, NoColorsLeavesEverythingUnset) {
    StandInModel model("no-colors,assembly");
    const StandInClient client(model);
    EXPECT_TRUE(client.Document()->Get("MaterialPropertyValues").IsEmpty());
    EXPECT_TRUE(client.Child(1)->Get("MaterialPropertyValues").IsEmpty());
    EXPECT_TRUE(
        StandInClient::ChildOf(client.Child(5), 0)->Get("MaterialPropertyValues").IsEmpty());
    EXPECT_EQ(model.Part().FaceAt(2)->Color(), std::nullopt);
    EXPECT_EQ(model.Part().FeatureAt(2)->Color(), std::nullopt);
}

TEST(Scenario, SizesGenerateDocuments) {
    StandInModel model("faces=100,features=0,components=50");
    EXPECT_EQ(model.Part().Faces().size(), 100U);
    EXPECT_TRUE(model.Part().Features().empty());
    EXPECT_EQ(model.Part().FaceAt(0)->OwnFeature(), nullptr);
    EXPECT_EQ(model.Assembly().Root()->Children().size(), 50U);
    EXPECT_EQ(model.ActiveDocument()->Type(), DocumentType::Assembly);
}

TEST(Scenario, ColorTablesOfAnySizeCanBeGenerated) {
    StandInModel model("standard-colors=100");
    const auto& colors = model.Part().Colors().Colors();
    ASSERT_EQ(colors.size(), 100U);
    EXPECT_EQ(colors[99].name, "Color 100");
    EXPECT_NE(colors[99].color, colors[98].color);
    EXPECT_EQ(model.Assembly().Colors().Colors().size(), 100U);
    EXPECT_TRUE(StandInModel("standard-colors=0").Part().Colors().Colors().empty());
}

TEST(Scenario, WordsAreAppliedInTheirOrder) {
    Scenario scenario;
    ApplyScenario("old-revision,no-document", scenario);
    EXPECT_EQ(scenario.revision, "8.1.0");
    EXPECT_EQ(scenario.active, std::nullopt);
}

TEST(Scenario, AnUnknownWordIsRefused) {
    for (const char* text : {"", "unknown", "faces", "faces=-1", "faces=x", "walls=3", "drawing,"})
        EXPECT_NE(ErrorNumberOf([&] {
                      Scenario scenario;
                      ApplyScenario(text, scenario);
                  }),
                  0)
            << text;
}

} // namespace
