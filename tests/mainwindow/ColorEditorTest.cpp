// Rules: Active-color editor
#include "mainwindow/ColorEditor.h"

#include "common/RuntimeError.h"
#include "tests/fakes/FakeMainView.h"
#include "tests/fakes/FakePrompts.h"
#include "tests/fakes/FakeTexts.h"

#include <gtest/gtest.h>

namespace {

class ColorEditorTest : public testing::Test {
protected:
    ColorEditorTest() { editor.ShowInitialColor(); }

    FakeMainView view;
    FakePrompts prompts;
    FakeTexts texts;
    ColorEditor editor{view, prompts, texts};
};

const ColorRecord kBlue{"Blue", "0DG1E1", "0DG1", false, {0, 0, 255, 10, 20, 30, 40, 50, 60},
                        "Blue"};

TEST_F(ColorEditorTest, InitialColorIsWhiteAndCalledNewColor) {
    EXPECT_EQ(editor.Name(), "New Color");
    EXPECT_EQ(editor.Values(), (ColorValueArray{255, 255, 255, 100, 100, 100, 30, 0, 0}));
    EXPECT_EQ(view.largeSwatch, 0xFFFFFFU);
}

TEST_F(ColorEditorTest, ShownColorFillsBoxesSlidersNameAndSwatches) {
    editor.ShowColor(kBlue);
    EXPECT_EQ(view.colorName, "Blue");
    EXPECT_EQ(view.valueTexts,
              (std::array<std::string, 9>{"0", "0", "255", "10", "20", "30", "40", "50", "60"}));
    EXPECT_EQ(view.sliders, (std::array<int, 9>{0, 0, 255, 10, 20, 30, 40, 50, 60}));
    EXPECT_EQ(view.largeSwatch, 0xFF0000U);
    EXPECT_EQ(view.smallSwatch, 0xFF0000U);
}

TEST_F(ColorEditorTest, SmallSwatchIsCaptionedWithNameAndNumbers) {
    editor.ShowColor(kBlue);
    EXPECT_EQ(view.smallCaption, "Blue (R:0 G:0 B:255)");
}

TEST_F(ColorEditorTest, SmallSwatchIsCaptionedOnceForAllNineValues) {
    const int before = view.captionsShown;
    editor.ShowColor(kBlue);
    EXPECT_EQ(view.captionsShown, before + 1);
}

TEST_F(ColorEditorTest, ColorBeyondTheRangeIsClampedInBoxesAndSwatchesAndNamedByItsOwnNumbers) {
    ColorRecord color = kBlue;
    color.values = {300, -5, 32767, 101, 20, 30, 40, 50, 60};
    editor.ShowColor(color);
    EXPECT_EQ(view.valueTexts,
              (std::array<std::string, 9>{"255", "0", "255", "100", "20", "30", "40", "50", "60"}));
    EXPECT_EQ(view.largeSwatch, 0xFF00FFU);
    EXPECT_EQ(view.smallSwatch, 0xFF00FFU);
    EXPECT_EQ(view.smallCaption, "Blue (R:300 G:-5 B:32767)");
    editor.Rename("Azure");
    EXPECT_EQ(view.smallCaption, "Azure (R:300 G:-5 B:32767)");
}

TEST_F(ColorEditorTest, ShownColorsTextIsTheFullComplement) {
    editor.ShowColor(kBlue);
    EXPECT_EQ(view.smallSwatchText, 0x00FFFFU);
}

TEST_F(ColorEditorTest, ColorFromSolidWorksHasTheTwentyBitComplement) {
    editor.ShowColorFromSolidWorks(kBlue);
    EXPECT_EQ(view.smallSwatchText, 0xF0FFFFU);
    EXPECT_EQ(view.smallCaption, "Blue (R:0 G:0 B:255)");
}

TEST_F(ColorEditorTest, RepaintTakesTheTwentyBitComplement) {
    editor.ShowColor(kBlue);
    editor.Repainted();
    EXPECT_EQ(view.smallSwatchText, 0xF0FFFFU);
}

TEST_F(ColorEditorTest, TypedValueTakesTheFullComplement) {
    editor.Repainted();
    editor.ValueTextChanged(0, "16");
    EXPECT_EQ(view.smallSwatchText, 0xFFFF10U ^ 0xFFFFFFU);
}

TEST_F(ColorEditorTest, EmptiedBoxShowsZeroWithItsTextSelected) {
    editor.ShowColor(kBlue);
    view.selectedWhole.fill(false);
    editor.ValueTextChanged(4, "");
    EXPECT_EQ(view.valueTexts[4], "0");
    EXPECT_EQ(view.sliders[4], 0);
    EXPECT_TRUE(view.selectedWhole[4]);
}

TEST_F(ColorEditorTest, ValueAboveTheRangeBecomesTheMaximumWithItsTextSelected) {
    editor.ShowColor(kBlue);
    editor.ValueTextChanged(0, "999");
    EXPECT_EQ(view.valueTexts[0], "255");
    EXPECT_EQ(view.sliders[0], 255);
    EXPECT_TRUE(view.selectedWhole[0]);
    editor.ValueTextChanged(5, "150");
    EXPECT_EQ(view.valueTexts[5], "100");
}

TEST_F(ColorEditorTest, PastedNegativeNumberBecomesZero) {
    editor.ValueTextChanged(3, "-5");
    EXPECT_EQ(view.valueTexts[3], "0");
}

TEST_F(ColorEditorTest, ValueStrictlyInTheRangeSelectsNothing) {
    editor.ShowColor(kBlue);
    view.selectedWhole.fill(false);
    editor.ValueTextChanged(0, "12");
    EXPECT_FALSE(view.selectedWhole[0]);
    EXPECT_EQ(view.sliders[0], 12);
}

TEST_F(ColorEditorTest, FractionIsRoundedHalfToEvenAndWrittenBack) {
    editor.ValueTextChanged(0, "1.5");
    EXPECT_EQ(view.valueTexts[0], "2");
    editor.ValueTextChanged(0, "2.5");
    EXPECT_EQ(view.valueTexts[0], "2");
}

TEST_F(ColorEditorTest, FullStopAfterDigitsVanishes) {
    editor.ValueTextChanged(0, "12.");
    EXPECT_EQ(view.valueTexts[0], "12");
}

TEST_F(ColorEditorTest, LoneFullStopIsAConversionErrorAndStays) {
    EXPECT_THROW(editor.ValueTextChanged(0, "."), RuntimeError);
    EXPECT_EQ(editor.Text(0), ".");
    EXPECT_THROW(static_cast<void>(editor.Values()), RuntimeError);
    editor.ValueTextChanged(0, "7");
    EXPECT_EQ(editor.Values()[0], 7);
}

TEST_F(ColorEditorTest, NumberBeyondTheConversionIsAnOverflow) {
    EXPECT_THROW(editor.ValueTextChanged(0, "99999999999"), RuntimeError);
}

TEST_F(ColorEditorTest, NumberTooNearToZeroIsZeroAndNoError) {
    editor.ValueTextChanged(0, "12");
    editor.ValueTextChanged(0, "1e-400");
    EXPECT_EQ(view.valueTexts[0], "0");
}

TEST_F(ColorEditorTest, OnlyDigitsBackspaceAndFullStopCanBeTyped) {
    for (char32_t character = 1; character < 0x180; ++character) {
        const bool expected =
            (character >= U'0' && character <= U'9') || character == 8 || character == U'.';
        EXPECT_EQ(editor.IsValueCharacter(character), expected) << static_cast<unsigned>(character);
    }
}

TEST_F(ColorEditorTest, SliderWritesItsBoxAndTheCaptionLosesTheName) {
    editor.ShowColor(kBlue);
    editor.SliderMoved(7, 40);
    EXPECT_EQ(view.valueTexts[7], "40");
    EXPECT_EQ(view.largeSwatch, 0xFF0000U) << "only red, green and blue color the swatches";
    EXPECT_EQ(view.smallCaption, " (R:0 G:0 B:255)");
}

TEST_F(ColorEditorTest, FocusSelectsTheWholeText) {
    view.selectedWhole.fill(false);
    editor.ValueFocused(6);
    EXPECT_TRUE(view.selectedWhole[6]);
}

TEST_F(ColorEditorTest, DialogChangesRedGreenAndBlueOnly) {
    editor.ShowColor(kBlue);
    prompts.chosenColors = {ColorNumber{0xFF8040}};
    editor.PickActiveColorFromDialog();
    EXPECT_EQ(editor.Values(), (ColorValueArray{64, 128, 255, 10, 20, 30, 40, 50, 60}));
    ASSERT_EQ(prompts.colorRequests.size(), 1U);
    EXPECT_EQ(prompts.colorRequests[0].first, "<23>");
    EXPECT_EQ(prompts.colorRequests[0].second, 0xFF0000U);
}

TEST_F(ColorEditorTest, CancelledDialogChangesNothing) {
    editor.ShowColor(kBlue);
    editor.PickActiveColorFromDialog();
    EXPECT_EQ(editor.Values(), kBlue.values);
    EXPECT_EQ(view.smallCaption, "Blue (R:0 G:0 B:255)");
}

TEST_F(ColorEditorTest, ColorIsShownWholeAlsoOverATextThatIsNoNumber) {
    EXPECT_THROW(editor.ValueTextChanged(1, "."), RuntimeError);
    EXPECT_NO_THROW(editor.ShowColor(kBlue));
    EXPECT_EQ(editor.Values(), kBlue.values);
    EXPECT_THROW(editor.ValueTextChanged(2, "."), RuntimeError);
    prompts.chosenColors = {ColorNumber{0xFF8040}};
    editor.PickActiveColorFromDialog();
    EXPECT_EQ(editor.Values(), (ColorValueArray{64, 128, 255, 10, 20, 30, 40, 50, 60}));
}

TEST_F(ColorEditorTest, MaterialFollowsLoadedColorsTypedValuesSlidersAndTheDialog) {
    EXPECT_EQ(view.material, (ColorValueArray{255, 255, 255, 100, 100, 100, 30, 0, 0}));
    editor.ShowColor(kBlue);
    EXPECT_EQ(view.material, kBlue.values);
    editor.ValueTextChanged(7, "12");
    EXPECT_EQ(view.material, (ColorValueArray{0, 0, 255, 10, 20, 30, 40, 12, 60}));
    editor.SliderMoved(8, 99);
    EXPECT_EQ(view.material, (ColorValueArray{0, 0, 255, 10, 20, 30, 40, 12, 99}));
    prompts.chosenColors = {ColorNumber{0x030201}};
    editor.PickActiveColorFromDialog();
    EXPECT_EQ(view.material, (ColorValueArray{1, 2, 3, 10, 20, 30, 40, 12, 99}));
    editor.ShowColorFromSolidWorks(kBlue);
    EXPECT_EQ(view.material, kBlue.values);
}

TEST_F(ColorEditorTest, MaterialHasTheValuesWithinTheirRangesAndKeepsThemOverAnError) {
    ColorRecord color = kBlue;
    color.values = {300, -5, 32767, 101, 20, 30, 40, 50, 60};
    editor.ShowColor(color);
    const ColorValueArray shown{255, 0, 255, 100, 20, 30, 40, 50, 60};
    EXPECT_EQ(view.material, shown);
    EXPECT_THROW(editor.ValueTextChanged(4, "."), RuntimeError);
    EXPECT_EQ(view.material, shown);
    editor.ValueTextChanged(5, "31");
    EXPECT_EQ(view.material, (ColorValueArray{255, 0, 255, 100, 20, 31, 40, 50, 60}));
}

TEST_F(ColorEditorTest, SmallSwatchFollowsARenameWhileItCarriesTheName) {
    editor.ShowColor(kBlue);
    editor.Rename("Azure");
    EXPECT_EQ(view.smallCaption, "Azure (R:0 G:0 B:255)");
    editor.ValueTextChanged(0, "1");
    editor.Rename("Sky");
    EXPECT_EQ(view.smallCaption, " (R:1 G:0 B:255)");
}

} // namespace
