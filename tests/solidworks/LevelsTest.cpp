// Rules: Which color is seen
#include "tests/solidworks/OperationTest.h"

#include "common/Numbers.h"
#include "solidworks/ResultKey.h"
#include "standin/model/DisplayColor.h"

#include <array>
#include <bit>

namespace {

using Kinds = std::vector<LevelKind>;

constexpr MaterialValues kOwn{0.2, 0.4, 0.6, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6};
constexpr ColorValueArray kOwnRead{51, 102, 153, 10, 20, 30, 40, 50, 60};

const char* NameOf(LevelKind kind) {
    constexpr std::array names{"component", "face", "feature", "body", "part", "assembly"};
    return names.at(static_cast<std::size_t>(kind));
}

// One line for each level: its kind and values, and which is seen.
std::string LinesOf(const LevelColors& colors) {
    std::string lines;
    for (std::size_t index = 0; index < colors.levels.size(); ++index) {
        const LevelColor& level = colors.levels[index];
        lines += std::string(NameOf(level.kind)) + ":";
        for (std::size_t value = 0; level.values && value < level.values->size(); ++value)
            lines += " " + std::to_string(level.values->at(value));
        lines += std::string(CanBeCleared(level) ? ", can be cleared" : "") +
                 (colors.Seen() == index ? ", seen" : "") + "\n";
    }
    return lines + (colors.isModelMissing ? "model missing\n" : "");
}

class Levels : public OperationTest {
protected:
    // The calls of a reading and what it has read.
    std::string Reading() {
        const std::string calls = CallsOf([&] { return tools->SWXReadLevels(colors); });
        EXPECT_EQ(model->Gate().LiveObjects(), 0U) << "nothing is held on to";
        return calls + LinesOf(colors);
    }
    // As the user has seen them before.
    void Read() { static_cast<void>(tools->SWXReadLevels(colors)); }
    std::string Clearing(LevelKind kind) {
        const std::string calls = CallsOf([&] { return tools->SWXClearLevel(kind, colors); });
        EXPECT_EQ(model->Gate().LiveObjects(), 0U);
        return calls + LinesOf(colors);
    }
    [[nodiscard]] Kinds KindsRead() const {
        Kinds kinds;
        for (const LevelColor& level : colors.levels)
            kinds.push_back(level.kind);
        return kinds;
    }
    [[nodiscard]] const std::vector<SelectedItem>& Selected() const {
        return model->ActiveDocument()->CurrentSelection().Items();
    }
    // A face of the part as it is seen through a component.
    void SelectThrough(const std::string& component, const EntityPtr& entity) {
        model->Assembly().SelectItem({entity, ComponentNamed(component)}, true);
    }

    LevelColors colors;
};

TEST_F(Levels, OfAFaceInAPart) {
    FaceAt(2)->Select(true);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAFaceInAnAssembly) {
    Start("assembly");
    ComponentNamed("Housing-1")->SetColor(kOwn);
    SelectThrough("Housing-1", FaceAt(2));
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAFaceThroughTheComponentInWhichItWasPicked) {
    Start("assembly");
    const auto screw = std::static_pointer_cast<PartDocument>(ComponentNamed("Screw-2")->Model());
    SelectThrough("Screw-2", screw->FaceAt(0));
    Read();
    EXPECT_TRUE(colors.levels.front().values) << "Screw-1 has no color, Screw-2 has one";
}

TEST_F(Levels, OfAFaceWithoutAFeature) {
    Start("features=0,faces=1");
    FaceAt(0)->Select(true);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAFeatureInAPart) {
    FeatureAt(2)->Select(true);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAFeatureOfAComponent) {
    Start("assembly");
    SelectThrough("Housing-1", FeatureAt(2));
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAFeatureOfTheAssemblyItself) {
    Start("assembly");
    model->Assembly().AddFeature("Cut");
    model->Assembly().SetColor(kOwn);
    model->Assembly().FeatureAt(0)->Select(true);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAComponentWithAPart) {
    Start("assembly");
    ComponentNamed("Cover-1")->Select(true);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAComponentWithASubAssembly) {
    Start("assembly");
    ComponentNamed("Latch-1")->Select(true);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfALightweightComponent) {
    Start("assembly");
    ComponentNamed("Seal-1")->Select(true);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAPartWithNothingSelected) {
    model->Part().Solid()->SetColor(kOwn);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAPartWithoutABody) {
    Start("part-without-body");
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfAnAssemblyWithNothingSelected) {
    Start("assembly");
    model->Assembly().SetColor(kOwn);
    ExpectTranscript(Reading());
}

TEST_F(Levels, OfWhatIsSelectedWithoutAnObjectAreThoseOfTheDocument) {
    FaceAt(0)->Select(true);
    FailNext("GetSelectedObject3", "null");
    ExpectTranscript(Reading());
}

TEST_F(Levels, OnlyTheFirstSelectedObjectIsLookedAt) {
    FeatureAt(0)->Select(true);
    FaceAt(0)->Select(true);
    AnEdge()->Select(true);
    Read();
    EXPECT_EQ(KindsRead(), (Kinds{LevelKind::Feature, LevelKind::Body, LevelKind::Part}));
}

TEST_F(Levels, WhatCarriesNoColorIsReportedAsByASetColor) {
    AnEdge()->Select(true);
    ExpectTranscript(Reading());
    const std::string report = tools->SWXSetColor(color);
    EXPECT_EQ(tools->SWXReadLevels(colors), report);
    EXPECT_EQ(colors, LevelColors());
}

TEST_F(Levels, LevelThatFailsOrAnswersWronglyHasNoColor) {
    FaceAt(2)->Select(true);
    for (const char* fault : {"error", "null", "empty", "text", "text-array"}) {
        FailNext("MaterialPropertyValues", fault); // the face's
        Read();
        EXPECT_FALSE(colors.levels.at(0).values) << fault;
        EXPECT_EQ(colors.levels.size(), 4U) << fault;
        FailNext("Body", fault);
        Read();
        EXPECT_FALSE(colors.levels.at(2).values) << fault;
        FailNext("GetFeature", fault);
        Read();
        EXPECT_FALSE(colors.levels.at(1).values) << fault;
    }
}

TEST_F(Levels, ModelThatIsNotToldIsMissing) {
    Start("assembly");
    ComponentNamed("Cover-1")->Select(true);
    for (const char* fault : {"error", "null", "empty", "text"}) {
        FailNext("GetModelDoc", fault);
        Read();
        EXPECT_EQ(KindsRead(), Kinds{LevelKind::Component}) << fault;
        EXPECT_TRUE(colors.isModelMissing) << fault;
    }
}

TEST_F(Levels, UsableArrayThatIsTooShortIsAnErrorThatNamesIt) {
    FaceAt(2)->Select(true);
    Read();
    FailNext("MaterialPropertyValues", "short-array");
    EXPECT_EQ(ErrorOf([&] { Read(); }),
              "The color array does not have nine numbers (MaterialPropertyValues)");
    EXPECT_EQ(colors, LevelColors()) << "nothing is known any more";
}

TEST_F(Levels, ReadingChangesNothing) {
    FaceAt(2)->Select(true);
    FeatureAt(2)->Select(true);
    const auto before = Selected();
    Read();
    EXPECT_EQ(Selected(), before);
    EXPECT_EQ(model->Part().RebuildCount(), 0);
}

// Every combination of colored levels: what is told to be seen is what the model shows.
TEST_F(Levels, SeenColorOfAFaceIsTheOneThatIsShown) {
    Start("assembly,no-colors");
    PartDocument& part = model->Part();
    const auto component = ComponentNamed("Housing-1");
    const auto face = FaceAt(2);
    SelectThrough("Housing-1", face);
    const auto valuesOf = [](int level) {
        return MaterialValues{0.1 * level, 0, 0, 0, 0, 0, 0, 0, 0};
    };
    constexpr int levels = 5;
    for (unsigned colored = 0; colored < 1U << levels; ++colored) {
        const auto colorOf = [&](int level) {
            return (colored >> level & 1U) != 0 ? MaterialOverride(valuesOf(level))
                                                : MaterialOverride();
        };
        component->SetColor(colorOf(0));
        face->SetColor(colorOf(1));
        face->OwnFeature()->SetColor(colorOf(2));
        part.Solid()->SetColor(colorOf(3));
        part.SetColor(colorOf(4));
        const DisplayColor shown =
            ResolveDisplayColor(part.LevelsOf(*face, component->EffectiveColor()));
        Read();
        ASSERT_EQ(colors.levels.size(), std::size_t{levels});
        const auto seen = colors.Seen();
        EXPECT_EQ(seen.value_or(levels), static_cast<std::size_t>(shown.level)) << colored;
        if (seen) {
            EXPECT_EQ(std::string(NameOf(colors.levels[*seen].kind)), ColorLevelName(shown.level));
            EXPECT_EQ(colors.levels[*seen].values->at(0), RoundToInt16(shown.values[0] * 255));
        }
        EXPECT_EQ(colors.Covered().size() + (seen ? 1 : 0),
                  static_cast<std::size_t>(std::popcount(colored)));
    }
}

// Clearing.

TEST_F(Levels, ClearOfAFace) {
    FaceAt(2)->Select(true);
    Read();
    ExpectTranscript(Clearing(LevelKind::Face));
    EXPECT_FALSE(FaceAt(2)->Color());
}

TEST_F(Levels, ClearOfAFeatureKeepsItsSuppression) {
    FeatureAt(2)->SetSuppressed(true);
    FeatureAt(2)->Select(true);
    Read();
    ExpectTranscript(Clearing(LevelKind::Feature));
    EXPECT_FALSE(FeatureAt(2)->Color());
    EXPECT_TRUE(FeatureAt(2)->IsSuppressed());
}

TEST_F(Levels, ClearOfTheFeatureOfAFaceSelectsTheFaceAgain) {
    FaceAt(8)->Select(true);
    Read();
    ExpectTranscript(Clearing(LevelKind::Feature));
    EXPECT_FALSE(FeatureAt(2)->Color());
    EXPECT_EQ(Selected(), (std::vector<SelectedItem>{{FaceAt(8), nullptr}}));
}

TEST_F(Levels, ClearOfAComponent) {
    Start("assembly");
    ComponentNamed("Cover-1")->Select(true);
    Read();
    ExpectTranscript(Clearing(LevelKind::Component));
    EXPECT_FALSE(ComponentNamed("Cover-1")->Color());
}

TEST_F(Levels, ClearOfTheComponentOfAFaceLeavesTheFaceAlone) {
    Start("assembly");
    FaceAt(2)->SetColor(kOwn);
    ComponentNamed("Housing-1")->SetColor(kOwn);
    SelectThrough("Housing-1", FaceAt(2));
    Read();
    ExpectTranscript(Clearing(LevelKind::Component));
    EXPECT_FALSE(ComponentNamed("Housing-1")->Color());
    EXPECT_TRUE(FaceAt(2)->Color());
    EXPECT_EQ(colors.levels.at(colors.Seen().value()).values, kOwnRead);
}

TEST_F(Levels, ClearOfOneLevelLeavesWhatElseIsSelectedColoredAndSelected) {
    for (const std::size_t face : {std::size_t{2}, std::size_t{7}, std::size_t{9}})
        FaceAt(face)->Select(true);
    FeatureAt(2)->Select(true);
    const auto before = Selected();
    Read();
    ExpectTranscript(Clearing(LevelKind::Face));
    EXPECT_FALSE(FaceAt(2)->Color());
    EXPECT_TRUE(FaceAt(7)->Color());
    EXPECT_TRUE(FaceAt(9)->Color());
    EXPECT_TRUE(FeatureAt(2)->Color());
    EXPECT_EQ(Selected(), before);
}

TEST_F(Levels, ClearNeedsRevision9ForAComponent) {
    Start("assembly,old-revision");
    ComponentNamed("Cover-1")->Select(true);
    Read();
    ExpectTranscript(Clearing(LevelKind::Component));
    EXPECT_TRUE(ComponentNamed("Cover-1")->Color());
}

TEST_F(Levels, NothingIsClearedWhenAnotherObjectIsSelectedByNow) {
    FaceAt(2)->Select(true);
    Read();
    FaceAt(7)->Select(false);
    ExpectTranscript(Clearing(LevelKind::Face));
    EXPECT_TRUE(FaceAt(2)->Color());
    EXPECT_TRUE(FaceAt(7)->Color());
}

TEST_F(Levels, NothingIsClearedWhenALevelHasAnotherColorByNow) {
    FaceAt(2)->Select(true);
    Read();
    model->Part().SetColor(kOwn);
    EXPECT_EQ(tools->SWXClearLevel(LevelKind::Face, colors), ResultKey::LevelsChanged);
    EXPECT_TRUE(FaceAt(2)->Color());
    EXPECT_EQ(colors.levels.back().values, kOwnRead) << "those that are there now";
}

TEST_F(Levels, NothingIsClearedWhenWhatIsSelectedCarriesNoColor) {
    FaceAt(2)->Select(true);
    Read();
    AnEdge()->Select(false);
    ExpectTranscript(Clearing(LevelKind::Face));
    EXPECT_TRUE(FaceAt(2)->Color());
}

TEST_F(Levels, AreUnknownAfterAClearThatFailed) {
    FaceAt(2)->Select(true);
    for (const char* member : {"Select", "SelectedFaceProperties", "EditRebuild"}) {
        FaceAt(2)->SetColor(kOwn);
        Read();
        FailNext(member, "error:Out of paint");
        EXPECT_EQ(ErrorOf([&] { Clearing(LevelKind::Face); }),
                  std::string("Out of paint (") + member + ")");
        if (std::string(member) != "EditRebuild") {
            EXPECT_TRUE(FaceAt(2)->Color());
        }
    }
}

// What the levels mean.

LevelColors LevelsWith(const std::vector<std::pair<LevelKind, bool>>& levels) {
    LevelColors colors;
    for (const auto& [kind, hasColor] : levels)
        colors.levels.push_back(
            {kind, hasColor ? std::optional(kOwnRead) : std::optional<ColorValueArray>()});
    return colors;
}

TEST(LevelColorsTest, FirstColorIsSeenAndCoversTheOthers) {
    const LevelColors colors = LevelsWith({{LevelKind::Component, false},
                                           {LevelKind::Face, true},
                                           {LevelKind::Feature, false},
                                           {LevelKind::Body, true},
                                           {LevelKind::Part, true}});
    EXPECT_EQ(colors.Seen(), 1U);
    EXPECT_EQ(colors.Covered(), (Kinds{LevelKind::Body, LevelKind::Part}));
}

TEST(LevelColorsTest, WithoutColorsNothingIsSeenOrCovered) {
    for (const LevelColors& colors : {LevelColors(), LevelsWith({{LevelKind::Part, false}})}) {
        EXPECT_FALSE(colors.Seen());
        EXPECT_EQ(colors.Covered(), Kinds{});
    }
}

TEST(LevelColorsTest, OnlyColoredComponentsFacesAndFeaturesCanBeCleared) {
    for (const auto kind : {LevelKind::Component, LevelKind::Face, LevelKind::Feature}) {
        EXPECT_TRUE(CanBeCleared({kind, kOwnRead}));
        EXPECT_FALSE(CanBeCleared({kind, {}}));
    }
    for (const auto kind : {LevelKind::Body, LevelKind::Part, LevelKind::Assembly})
        EXPECT_FALSE(CanBeCleared({kind, kOwnRead}));
}

TEST(LevelColorsTest, OthersMayShowInsideUnlessItIsAFaceOrAComponentCoversAll) {
    EXPECT_FALSE(LevelColors().MayShowOthersInside());
    EXPECT_FALSE(
        LevelsWith({{LevelKind::Face, false}, {LevelKind::Part, true}}).MayShowOthersInside());
    EXPECT_FALSE(
        LevelsWith({{LevelKind::Component, true}, {LevelKind::Part, true}}).MayShowOthersInside());
    EXPECT_TRUE(
        LevelsWith({{LevelKind::Component, false}, {LevelKind::Part, true}}).MayShowOthersInside());
    EXPECT_TRUE(LevelsWith({{LevelKind::Feature, true}}).MayShowOthersInside());
    EXPECT_TRUE(LevelsWith({{LevelKind::Part, false}}).MayShowOthersInside());
}

} // namespace
