// Rules: Stand-in for SolidWorks
#include "standin/model/ObjectRows.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> NamesOf(const StandInModel& model) {
    std::vector<std::string> names;
    for (const SelectedItem& item : ObjectRows(model.ActiveDocument()))
        names.push_back(RowName(item));
    return names;
}

SelectedItem RowNamed(const StandInModel& model, const std::string& name) {
    for (const SelectedItem& item : ObjectRows(model.ActiveDocument()))
        if (RowName(item) == name)
            return item;
    return {};
}

TEST(ObjectRows, OfAPartAreFeaturesThenFacesThenEdgesThenWhatHasNoColor) {
    const std::vector<std::string> names = NamesOf(StandInModel());
    ASSERT_EQ(names.size(), 33U);
    EXPECT_EQ(names[0], "Base");
    EXPECT_EQ(names[6], "Face 1");
    EXPECT_EQ(names[20], "Edge 1");
    EXPECT_EQ(
        std::vector<std::string>(names.begin() + 24, names.end()),
        (std::vector<std::string>{"Vertex 1", "Vertex 2", "Front Plane", "Top Plane", "Right Plane",
                                  "Origin", "Sketch 1", "Sketch 2", "Sketch 3"}));
}

TEST(ObjectRows, OfAnAssemblyNameTheComponentOfEachFace) {
    const StandInModel model("assembly");
    EXPECT_EQ(NamesOf(model)[0], "Mates");
    EXPECT_EQ(NamesOf(model)[1], "Housing-1");
    EXPECT_NE(RowNamed(model, "Face 2 of Cover-1").entity, nullptr);
    EXPECT_EQ(RowNamed(model, "Lever-1").entity->Kind(), EntityKind::Component);
    EXPECT_NE(RowNamed(model, "Face 1 of Screw-1"), RowNamed(model, "Face 1 of Screw-3"));
}

TEST(ObjectRows, AreEmptyWithoutADocumentAndInADrawing) {
    EXPECT_TRUE(NamesOf(StandInModel("no-document")).empty());
    EXPECT_TRUE(NamesOf(StandInModel("drawing")).empty());
}

TEST(DisplayColorOf, AFaceShowsItsOwnThenItsFeaturesThenTheBodysThenThePartsColor) {
    StandInModel model;
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 3")).level, ColorLevel::Face);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 9")).level, ColorLevel::Feature);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 1")).level, ColorLevel::Part);
    model.Part().Solid()->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 1")).level, ColorLevel::Body);
}

TEST(DisplayColorOf, AFeatureShowsItsOwnThenTheBodysThenThePartsColor) {
    StandInModel model;
    Entity& feature = *RowNamed(model, "Base").entity;
    feature.SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Base")).level, ColorLevel::Feature);
    feature.SetColor({});
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Base")).level, ColorLevel::Part);
    model.Part().Solid()->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Base")).level, ColorLevel::Body);
}

TEST(DisplayColorOf, AColoredComponentHidesTheColorsOfItsFaces) {
    StandInModel model("assembly");
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 3 of Housing-1")).level, ColorLevel::Face);
    model.Assembly().Root()->Children()[0]->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 3 of Housing-1")),
              (DisplayColor{kUnsetMaterial, ColorLevel::Component}));
}

TEST(DisplayColorOf, AColoredSubAssemblyHidesTheColorsOfItsComponents) {
    StandInModel model("assembly");
    model.Assembly().Root()->Children()[5]->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Lever-1")).values, kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 1 of Lever-1")).values, kUnsetMaterial);
}

TEST(DisplayColorOf, EdgesVerticesPlanesAndSketchesShowNoColor) {
    const StandInModel model;
    for (const char* name : {"Edge 1", "Vertex 1", "Front Plane", "Sketch 1"})
        EXPECT_EQ(DisplayColorOf(RowNamed(model, name)).level, ColorLevel::None) << name;
}

} // namespace
