// Rules: Color from and to the selection
#include "tests/solidworks/OperationTest.h"

namespace {

constexpr MaterialValues kOwn{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};
constexpr ColorValueArray kOwnRead{51, 102, 153, 10, 20, 30, 40, 50, 60};

class GetColor : public OperationTest {
protected:
    std::string Calls() {
        color = {};
        return CallsOf([&] { return tools->SWXGetColor(color); });
    }
    // Whether the record was filled with what an object carries.
    [[nodiscard]] bool HasRead(const ColorValueArray& values) const {
        return color.values == values && color.name == "Neuer Farbwert";
    }
};

TEST_F(GetColor, NothingSelectedReadsTheDocument) {
    model->Part().SetColor(kOwn);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FaceWithAColorOfItsOwn) {
    FaceAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, OnlyTheFirstSelectedObjectIsLookedAt) {
    FaceAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    AnEdge()->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFaceAsksItsFeature) {
    FeatureAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFaceOfAnUnsetFeatureAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFaceWithoutAFeatureAsksTheDocument) {
    Start("features=0,faces=1");
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FaceForWhichNothingCarriesAColor) {
    Start("no-colors");
    FaceAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(color, ColorRecord()) << "the record stays as it was handed in";
}

TEST_F(GetColor, FeatureWithAColorOfItsOwn) {
    FeatureAt(0)->SetColor(kOwn);
    FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFeatureAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FeatureForWhichNothingCarriesAColor) {
    Start("no-colors");
    FeatureAt(0)->Select(true);
    ExpectTranscript(Calls());
}

TEST_F(GetColor, ComponentWithAColorOfItsOwn) {
    Start("assembly");
    ComponentNamed("Screw-1")->SetColor(kOwn);
    ComponentNamed("Screw-1")->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetComponentAsksItsModel) {
    Start("assembly");
    model->Part().SetColor(kOwn);
    ComponentNamed("Housing-1")->Select(true);
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetLightweightComponentHasNoModelToAsk) {
    Start("assembly");
    ComponentNamed("Seal-1")->Select(true);
    ExpectTranscript(Calls());
}

TEST_F(GetColor, ComponentThatIsNoObjectAsksTheDocument) {
    Start("assembly");
    model->Assembly().SetColor(kOwn);
    ComponentNamed("Screw-1")->Select(true);
    FailNext("GetSelectedObject3", "null");
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, LoadedComponentForWhichNothingCarriesAColor) {
    Start("assembly,no-colors");
    ComponentNamed("Housing-1")->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, ComponentThatCannotTellItsModelHasNoModelToAsk) {
    Start("assembly");
    ComponentNamed("Housing-1")->Select(true);
    FailNext("GetModelDoc", "error");
    ExpectTranscript(Calls());
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, FaceThatIsNoObjectAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    FailNext("GetSelectedObject3", "null");
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FeatureThatIsNoObjectAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FeatureAt(0)->Select(true);
    FailNext("GetSelectedObject3", "null");
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, EdgeCarriesNoColor) {
    AnEdge()->Select(true);
    ExpectTranscript(Calls());
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, SourceThatFailsIsPassedOver) {
    FeatureAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    FailNext("MaterialPropertyValues", "error");
    ExpectTranscript(Calls());
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FaceThatCannotTellItsFeatureAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    for (const char* fault : {"error", "text", "empty"}) {
        FailNext("GetFeature", fault);
        Calls();
        EXPECT_TRUE(HasRead(kOwnRead)) << fault;
    }
}

TEST_F(GetColor, ArrayWhoseFirstElementIsNoNumberIsNotUsable) {
    FeatureAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    for (const char* fault : {"text-array", "text", "empty", "null"}) {
        FailNext("MaterialPropertyValues", fault);
        Calls();
        EXPECT_TRUE(HasRead(kOwnRead)) << fault;
    }
}

TEST_F(GetColor, UsableArrayThatIsTooShortIsAnErrorThatNamesIt) {
    FaceAt(0)->Select(true);
    FailNext("MaterialPropertyValues", "short-array");
    EXPECT_EQ(ErrorOf([&] { Calls(); }),
              "The color array does not have nine numbers (MaterialPropertyValues)");
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, UnsetDocumentWithNothingSelectedIsAnErrorThatNamesIt) {
    Start("no-colors");
    EXPECT_EQ(ErrorOf([&] { Calls(); }),
              "The color array does not have nine numbers (MaterialPropertyValues)");
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, ValuesAreScaledAndRoundedAnExactHalfToTheEvenNeighbour) {
    FaceAt(0)->SetColor(MaterialValues{0.5, 128 / 255.0, 1, 0.015, 0.025, 1, 0.994, 0.005, 0.0151});
    FaceAt(0)->Select(true);
    tools->SWXGetColor(color);
    EXPECT_EQ(color.values, (ColorValueArray{128, 128, 255, 2, 2, 100, 99, 0, 2}));
}

} // namespace
