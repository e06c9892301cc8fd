// Rules: Color from and to the selection
#include "tests/solidworks/OperationTest.h"

namespace {

constexpr MaterialValues kSent{1, 0, 1, 1, 0.5, 0.25, 0, 0, 1}; // the editor's color

class SetColor : public OperationTest {
protected:
    std::string Calls() {
        return CallsOf([&] { return tools->SWXSetColor(color); });
    }
};

class SetColorComponent : public OperationTest {
protected:
    SetColorComponent() { Start("assembly"); }

    std::string Calls() {
        return CallsOf([&] { return tools->SWXSetColorComponent(color); });
    }
};

TEST_F(SetColor, NothingSelectedColorsTheDocument) {
    ExpectTranscript(Calls());
    EXPECT_EQ(model->Part().Color(), kSent);
}

TEST_F(SetColor, FacesAndFeaturesAreColoredAndTheDocumentRebuiltOnce) {
    FaceAt(0)->Select(true);
    FeatureAt(1)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(FaceAt(0)->Color(), kSent);
    EXPECT_EQ(FeatureAt(1)->Color(), kSent);
    EXPECT_EQ(FaceAt(1)->Color(), std::nullopt);
}

TEST_F(SetColor, ComponentsFacesAndFeaturesOfAnAssemblyAreColored) {
    Start("assembly");
    ComponentNamed("Screw-1")->Select(true);
    FaceAt(0)->Select(true);
    model->Assembly().FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Screw-1")->Color(), kSent);
    EXPECT_EQ(FaceAt(0)->Color(), kSent);
    EXPECT_EQ(model->Assembly().FeatureAt(0)->Color(), kSent);
}

TEST_F(SetColor, EdgeIsReportedAndThreeFacesAreColored) {
    FaceAt(0)->Select(true);
    AnEdge()->Select(true);
    FaceAt(1)->Select(true);
    FaceAt(2)->Select(true);
    ExpectTranscript(Calls());
    for (const std::size_t face : {0U, 1U, 2U})
        EXPECT_EQ(FaceAt(face)->Color(), kSent) << face;
}

TEST_F(SetColor, EveryEdgeIsReportedInALineOfItsOwn) {
    AnEdge()->Select(true);
    model->Part().Edges()[1]->Select(true);
    EXPECT_EQ(tools->SWXSetColor(color), "\r\nNoValidSelection: 1\r\nNoValidSelection: 1");
    EXPECT_EQ(model->Part().RebuildCount(), 1);
}

TEST_F(SetColor, SelectionThatIsNoObjectColorsTheDocument) {
    FaceAt(0)->Select(true);
    FaceAt(1)->Select(true);
    FailNext("GetSelectedObject3", "null");
    ExpectTranscript(Calls());
    EXPECT_EQ(model->Part().Color(), kSent);
    EXPECT_EQ(FaceAt(0)->Color(), std::nullopt);
    EXPECT_EQ(FaceAt(1)->Color(), kSent);
}

TEST_F(SetColor, ValuesAreSentAsNumbersFromZeroToOne) {
    color.values = {128, 1, 254, 1, 99, 33, 7, 50, 0};
    tools->SWXSetColor(color);
    EXPECT_EQ(model->Part().Color(),
              (MaterialValues{128 / 255.0, 1 / 255.0, 254 / 255.0, 1 / 100.0, 99 / 100.0,
                              33 / 100.0, 7 / 100.0, 50 / 100.0, 0}));
}

TEST_F(SetColorComponent, NothingSelectedColorsTheAssembly) {
    ExpectTranscript(Calls());
    EXPECT_EQ(model->Assembly().Color(), kSent);
}

TEST_F(SetColorComponent, TheComponentThatOwnsEachSelectedObjectIsColored) {
    ComponentNamed("Screw-1")->Select(true);
    FaceAt(0)->Select(true);
    FaceAt(1)->Select(true); // of the same component: once more
    AnEdge()->Select(true);
    FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(ComponentNamed("Screw-1")->Color(), kSent);
    EXPECT_EQ(ComponentNamed("Housing-1")->Color(), kSent);
    EXPECT_EQ(FaceAt(0)->Color(), std::nullopt);
}

TEST_F(SetColorComponent, ObjectWithoutAComponentColorsTheAssembly) {
    model->Assembly().FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(model->Assembly().Color(), kSent);
}

} // namespace
