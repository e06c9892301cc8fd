// Rules: Color from and to the selection
#include "tests/solidworks/OperationTest.h"

namespace {

constexpr MaterialValues kOwn{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};
constexpr ColorValueArray kOwnRead{51, 102, 153, 10, 20, 30, 40, 50, 60};

class GetColor : public OperationTest {
protected:
    std::string Calls(const std::string& fault = {}) {
        color = {};
        return CallsOf([&] { return tools->SWXGetColor(color); }, fault);
    }
    // Whether the record was filled with what an object carries.
    [[nodiscard]] bool HasRead(const ColorValueArray& values) const {
        return color.values == values && color.name == "Neuer Farbwert";
    }
};

TEST_F(GetColor, NothingSelectedReadsTheDocument) {
    model->Part().SetColor(kOwn);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call document "Housing.SLDPRT" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FaceWithAColorOfItsOwn) {
    FaceAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call face "Face 1" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, OnlyTheFirstSelectedObjectIsLookedAt) {
    FaceAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    AnEdge()->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call face "Face 1" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFaceAsksItsFeature) {
    FeatureAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call face "Face 1" MaterialPropertyValues()
call face "Face 1" GetFeature()
call feature "Base" GetMaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFaceOfAnUnsetFeatureAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call face "Face 1" MaterialPropertyValues()
call face "Face 1" GetFeature()
call feature "Base" GetMaterialPropertyValues()
call document "Housing.SLDPRT" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFaceWithoutAFeatureAsksTheDocument) {
    Start("features=0,faces=1");
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Generated.SLDPRT" GetType()
call document "Generated.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call face "Face 1" MaterialPropertyValues()
call face "Face 1" GetFeature()
call document "Generated.SLDPRT" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FaceForWhichNothingCarriesAColor) {
    Start("no-colors");
    FaceAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call face "Face 1" MaterialPropertyValues()
call face "Face 1" GetFeature()
call feature "Base" GetMaterialPropertyValues()
call document "Housing.SLDPRT" MaterialPropertyValues()
= NoColorValueFound: 2
)");
    EXPECT_EQ(color, ColorRecord()) << "the record stays as it was handed in";
}

TEST_F(GetColor, FeatureWithAColorOfItsOwn) {
    FeatureAt(0)->SetColor(kOwn);
    FeatureAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call feature "Base" GetMaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetFeatureAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FeatureAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call feature "Base" GetMaterialPropertyValues()
call document "Housing.SLDPRT" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FeatureForWhichNothingCarriesAColor) {
    Start("no-colors");
    FeatureAt(0)->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call feature "Base" GetMaterialPropertyValues()
call document "Housing.SLDPRT" MaterialPropertyValues()
= NoColorValueFound: 22
)");
}

TEST_F(GetColor, ComponentWithAColorOfItsOwn) {
    Start("assembly");
    ComponentNamed("Screw-1")->SetColor(kOwn);
    ComponentNamed("Screw-1")->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Enclosure.SLDASM" GetType()
call document "Enclosure.SLDASM" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call component "Screw-1" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetComponentAsksItsModel) {
    Start("assembly");
    model->Part().SetColor(kOwn);
    ComponentNamed("Housing-1")->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Enclosure.SLDASM" GetType()
call document "Enclosure.SLDASM" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call component "Housing-1" MaterialPropertyValues()
call component "Housing-1" GetModelDoc()
call document "Housing.SLDPRT" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, UnsetLightweightComponentHasNoModelToAsk) {
    Start("assembly");
    ComponentNamed("Seal-1")->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Enclosure.SLDASM" GetType()
call document "Enclosure.SLDASM" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call component "Seal-1" MaterialPropertyValues()
call component "Seal-1" GetModelDoc()
= NoColorValueFound: 20
)");
}

TEST_F(GetColor, ComponentThatIsNoObjectAsksTheDocument) {
    Start("assembly");
    model->Assembly().SetColor(kOwn);
    ComponentNamed("Screw-1")->Select(true);
    EXPECT_EQ(Calls("5:null"), R"(
call application ActiveDoc()
call document "Enclosure.SLDASM" GetType()
call document "Enclosure.SLDASM" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call document "Enclosure.SLDASM" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, LoadedComponentForWhichNothingCarriesAColor) {
    Start("assembly,no-colors");
    ComponentNamed("Housing-1")->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Enclosure.SLDASM" GetType()
call document "Enclosure.SLDASM" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call component "Housing-1" MaterialPropertyValues()
call component "Housing-1" GetModelDoc()
call document "Housing.SLDPRT" MaterialPropertyValues()
= NoColorValueFound: 20
)");
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, ComponentThatCannotTellItsModelHasNoModelToAsk) {
    Start("assembly");
    ComponentNamed("Housing-1")->Select(true);
    EXPECT_EQ(Calls("8:error"), R"(
call application ActiveDoc()
call document "Enclosure.SLDASM" GetType()
call document "Enclosure.SLDASM" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call component "Housing-1" MaterialPropertyValues()
call component "Housing-1" GetModelDoc()
= NoColorValueFound: 20
)");
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, FaceThatIsNoObjectAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    EXPECT_EQ(Calls("5:null"), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call document "Housing.SLDPRT" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FeatureThatIsNoObjectAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FeatureAt(0)->Select(true);
    EXPECT_EQ(Calls("5:null"), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call document "Housing.SLDPRT" MaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, EdgeCarriesNoColor) {
    AnEdge()->Select(true);
    EXPECT_EQ(Calls(), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
= NoValidSelection: 1
)");
    EXPECT_EQ(color, ColorRecord());
}

TEST_F(GetColor, SourceThatFailsIsPassedOver) {
    FeatureAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    EXPECT_EQ(Calls("7:error"), R"(
call application ActiveDoc()
call document "Housing.SLDPRT" GetType()
call document "Housing.SLDPRT" SelectionManager()
call selection manager GetSelectedObjectCount()
call selection manager GetSelectedObject3(1)
call selection manager GetSelectedObjectType2(1)
call face "Face 1" MaterialPropertyValues()
call face "Face 1" GetFeature()
call feature "Base" GetMaterialPropertyValues()
= 
)");
    EXPECT_TRUE(HasRead(kOwnRead));
}

TEST_F(GetColor, FaceThatCannotTellItsFeatureAsksTheDocument) {
    model->Part().SetColor(kOwn);
    FaceAt(0)->Select(true);
    for (const char* fault : {"8:error", "8:text", "8:empty"}) {
        Calls(fault);
        EXPECT_TRUE(HasRead(kOwnRead)) << fault;
    }
}

TEST_F(GetColor, ArrayWhoseFirstElementIsNoNumberIsNotUsable) {
    FeatureAt(0)->SetColor(kOwn);
    FaceAt(0)->Select(true);
    for (const char* fault : {"7:text-array", "7:text", "7:empty", "7:null"}) {
        Calls(fault);
        EXPECT_TRUE(HasRead(kOwnRead)) << fault;
    }
}

TEST_F(GetColor, UsableArrayThatIsTooShortIsAnErrorThatNamesIt) {
    FaceAt(0)->Select(true);
    EXPECT_EQ(ErrorOf([&] { Calls("7:short-array"); }),
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
