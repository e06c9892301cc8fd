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

TEST(ObjectRows, OfAPartAreFeaturesThenFacesThenEdges) {
    const std::vector<std::string> names = NamesOf(StandInModel());
    ASSERT_EQ(names.size(), 24U);
    EXPECT_EQ(names[0], "Base");
    EXPECT_EQ(names[6], "Face 1");
    EXPECT_EQ(names[20], "Edge 1");
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

TEST(DisplayColorOf, AFaceShowsItsOwnThenItsFeaturesThenTheBodysThenThePartsColour) {
    StandInModel model;
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 3")).level, ColorLevel::Face);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 9")).level, ColorLevel::Feature);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 1")).level, ColorLevel::Part);
    model.Part().Solid()->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 1")).level, ColorLevel::Body);
}

TEST(DisplayColorOf, AFeatureShowsItsOwnThenTheBodysThenThePartsColour) {
    StandInModel model;
    Entity& feature = *RowNamed(model, "Base").entity;
    feature.SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Base")).level, ColorLevel::Feature);
    feature.SetColor({});
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Base")).level, ColorLevel::Part);
    model.Part().Solid()->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Base")).level, ColorLevel::Body);
}

TEST(DisplayColorOf, AColouredComponentHidesTheColoursOfItsFaces) {
    StandInModel model("assembly");
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 3 of Housing-1")).level, ColorLevel::Face);
    model.Assembly().Root()->Children()[0]->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 3 of Housing-1")),
              (DisplayColor{kUnsetMaterial, ColorLevel::Component}));
}

TEST(DisplayColorOf, AColouredSubAssemblyHidesTheColoursOfItsComponents) {
    StandInModel model("assembly");
    model.Assembly().Root()->Children()[5]->SetColor(kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Lever-1")).values, kUnsetMaterial);
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Face 1 of Lever-1")).values, kUnsetMaterial);
}

TEST(DisplayColorOf, AnEdgeShowsNoColour) {
    const StandInModel model;
    EXPECT_EQ(DisplayColorOf(RowNamed(model, "Edge 1")).level, ColorLevel::None);
}

} // namespace
