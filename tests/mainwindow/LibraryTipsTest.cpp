// Rules: Tree and list views
#include "mainwindow/LibraryTips.h"

#include <gtest/gtest.h>

namespace {

// As without a language file.
class BuiltInTexts : public InfoTexts {
public:
    std::string GetInfoText(std::int32_t) override { return {}; }
    std::string GetInfoTextOr(std::int32_t, const std::string& builtIn) override { return builtIn; }
};

// A library with the groups "one" and "two" and some colors in each, red from 1 on.
class LibraryTipsTest : public testing::Test {
protected:
    LibraryTipsTest() {
        library.NewMainNode("Lib");
        library.NewGroupNode("0D", "one");
        library.NewGroupNode("0D", "two");
    }
    void AddColors(const std::string& group, int count) {
        for (int added = 0; added < count; ++added) {
            const auto red = static_cast<std::int16_t>(library.Colors().UpperBound() + 1);
            library.Colors().Append(
                {"c", group + "E" + std::to_string(red), group, false, {red}, "c"});
        }
    }
    [[nodiscard]] std::vector<int> Reds(const std::string& key) const {
        std::vector<int> reds;
        for (const ColorValueArray& values : tips.TipOf(key).colors)
            reds.push_back(values.front());
        return reds;
    }

    ColorLibrary library;
    BuiltInTexts texts;
    LibraryTips tips{library, texts};
};

TEST_F(LibraryTipsTest, GroupHasItsFirstColorsInTheirOrderAndTellsHowManyThereAre) {
    AddColors("0DG1", 3);
    EXPECT_EQ(Reds("0DG1"), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(tips.TipOf("0DG1").more, 0);
    EXPECT_EQ(tips.TipOf("0DG1").text, "one: 3 Farben");
}

TEST_F(LibraryTipsTest, LibraryHasTheColorsOfAllItsGroups) {
    AddColors("0DG2", 2);
    AddColors("0DG1", 1);
    EXPECT_EQ(Reds("0D"), (std::vector<int>{3, 1, 2})) << "group after group";
    EXPECT_EQ(tips.TipOf("0D").text, "Lib: 3 Farben");
}

TEST_F(LibraryTipsTest, NoMoreThanTwelveAreShownAndTheOthersAreCounted) {
    AddColors("0DG1", 12);
    EXPECT_EQ(tips.TipOf("0DG1").more, 0);
    AddColors("0DG1", 1);
    EXPECT_EQ(Reds("0DG1").size(), 12U);
    EXPECT_EQ(tips.TipOf("0DG1").more, 1);
    EXPECT_EQ(tips.TipOf("0DG1").text, "one: 13 Farben");
    AddColors("0DG2", 100);
    EXPECT_EQ(Reds("0D"), Reds("0DG1"));
    EXPECT_EQ(tips.TipOf("0D").more, 101);
    EXPECT_EQ(tips.TipOf("0D").text, "Lib: 113 Farben");
}

TEST_F(LibraryTipsTest, OneColorAndNoneHaveTheirTextToo) {
    EXPECT_EQ(tips.TipOf("0DG1").text, "one: 0 Farben");
    EXPECT_TRUE(Reds("0DG1").empty());
    AddColors("0DG1", 1);
    EXPECT_EQ(tips.TipOf("0DG1").text, "one: 1 Farbe");
}

TEST_F(LibraryTipsTest, NodeThatIsGoneHasNoTip) {
    EXPECT_EQ(tips.TipOf("7D"), NodeTip());
    EXPECT_EQ(tips.TipOf(""), NodeTip());
}

} // namespace
