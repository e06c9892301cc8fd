// Rules: Stand-in for SolidWorks
#include "standin/model/DisplayColor.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

MaterialValues Filled(double value) {
    MaterialValues values{};
    values.fill(value);
    return values;
}

ColorLevels AllLevels() {
    return {Filled(0.1), Filled(0.2), Filled(0.3), Filled(0.4), Filled(0.5)};
}

TEST(DisplayColor, TheComponentBeatsEveryOtherLevel) {
    EXPECT_EQ(ResolveDisplayColor(AllLevels()), (DisplayColor{Filled(0.1), ColorLevel::Component}));
}

TEST(DisplayColor, TheFaceBeatsFeatureBodyAndPart) {
    ColorLevels levels = AllLevels();
    levels.component.reset();
    EXPECT_EQ(ResolveDisplayColor(levels), (DisplayColor{Filled(0.2), ColorLevel::Face}));
}

TEST(DisplayColor, TheFeatureBeatsBodyAndPart) {
    ColorLevels levels = AllLevels();
    levels.component.reset();
    levels.face.reset();
    EXPECT_EQ(ResolveDisplayColor(levels), (DisplayColor{Filled(0.3), ColorLevel::Feature}));
}

TEST(DisplayColor, TheBodyBeatsThePart) {
    EXPECT_EQ(ResolveDisplayColor({{}, {}, {}, Filled(0.4), Filled(0.5)}),
              (DisplayColor{Filled(0.4), ColorLevel::Body}));
}

TEST(DisplayColor, ThePartIsAskedLast) {
    EXPECT_EQ(ResolveDisplayColor({{}, {}, {}, {}, Filled(0.5)}),
              (DisplayColor{Filled(0.5), ColorLevel::Part}));
}

TEST(DisplayColor, EveryLevelHasTheNameThatTheWindowShows) {
    const std::map<ColorLevel, std::string> names = {
        {ColorLevel::Component, "component"}, {ColorLevel::Face, "face"},
        {ColorLevel::Feature, "feature"},     {ColorLevel::Body, "body"},
        {ColorLevel::Part, "part"},           {ColorLevel::None, "nothing"}};
    for (const auto& [level, name] : names)
        EXPECT_EQ(ColorLevelName(level), name);
}

TEST(DisplayColor, WithoutAnyColorAPlainGreyIsSeen) {
    EXPECT_EQ(ResolveDisplayColor({}), (DisplayColor{kUnsetMaterial, ColorLevel::None}));
}

} // namespace
