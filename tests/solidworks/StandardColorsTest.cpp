// Rules: Standard color table
#include "tests/solidworks/OperationTest.h"

namespace {

using Messages = std::vector<FakePrompts::Message>;

class StandardColorsOfTable : public OperationTest {
protected:
    StandardColorsOfTable() {
        Start("standard-colors=3");
        Table().Replace({{"First", 0xFF8040}, {"Second", 0x000000}, {"Third", 0xFFFFFF}});
    }

    [[nodiscard]] StandardColorTable& Table() const { return model->Part().Colors(); }
    [[nodiscard]] std::vector<ColorNumber> Numbers() const {
        std::vector<ColorNumber> numbers;
        for (const NamedColor& entry : Table().Colors())
            numbers.push_back(entry.color);
        return numbers;
    }
    std::string GetCalls() {
        return CallsOf([&] { return tools->SWXGetStandardColors(colors); });
    }
    std::string SetCalls() {
        return CallsOf([&] { return tools->SWXSetStandardColors(colors); });
    }
    // The table's colors in other values.
    void ReadAndChange() {
        tools->SWXGetStandardColors(colors);
        for (ColorRecord& entry : colors)
            entry.values = {1, 2, 3, 0, 0, 0, 0, 0, 0};
    }

    std::vector<ColorRecord> colors;
};

const Messages kAskSize{{"<72>\r\n<74>", 65, "TNT4SWX"}};
const Messages kAskName{{"<73>\r\n<74>", 65, "TNT4SWX"}};

TEST_F(StandardColorsOfTable, NamesAndColorsAreReadByIndexFromZero) {
    ExpectTranscript(GetCalls());
    ASSERT_EQ(colors.size(), 3U);
    EXPECT_EQ(colors[0].name, "First");
    EXPECT_EQ(colors[0].values, (ColorValueArray{64, 128, 255}));
    EXPECT_EQ(colors[2].values, (ColorValueArray{255, 255, 255}));
}

TEST_F(StandardColorsOfTable, EmptyTableGivesNoColors) {
    Start("standard-colors=0");
    colors.resize(2);
    ExpectTranscript(GetCalls());
    EXPECT_TRUE(colors.empty());
}

TEST_F(StandardColorsOfTable, DrawingHasATableToo) {
    Start("drawing");
    EXPECT_EQ(tools->SWXGetStandardColors(colors), "Okay");
    EXPECT_EQ(colors.size(), 12U);
}

TEST_F(StandardColorsOfTable, EveryEntryIsWrittenWithItsIndexItsNumberAndZero) {
    ReadAndChange();
    ExpectTranscript(SetCalls());
    EXPECT_EQ(Numbers(), std::vector<ColorNumber>(3, 0x030201));
    EXPECT_TRUE(prompts.messages.empty());
}

TEST_F(StandardColorsOfTable, ColorsThatWereReadAreWrittenBackUnchanged) {
    const std::vector<ColorNumber> before = Numbers();
    tools->SWXGetStandardColors(colors);
    EXPECT_EQ(tools->SWXSetStandardColors(colors), "Okay");
    EXPECT_EQ(Numbers(), before);
}

TEST_F(StandardColorsOfTable, DifferingSizeAsksAndCancelWritesNothing) {
    ReadAndChange();
    colors.emplace_back();
    prompts.answers = {Answer::Cancel};
    ExpectTranscript(SetCalls());
    EXPECT_EQ(prompts.messages, kAskSize);
}

TEST_F(StandardColorsOfTable, DifferingSizeAndOkWritesTheEntriesOfTheTable) {
    ReadAndChange();
    colors.emplace_back();
    ExpectTranscript(SetCalls());
    EXPECT_EQ(Numbers(), std::vector<ColorNumber>(3, 0x030201));
    EXPECT_EQ(prompts.messages, kAskSize);
}

TEST_F(StandardColorsOfTable, NoColorsForATableAreADifferingSize) {
    prompts.answers = {Answer::Cancel};
    EXPECT_EQ(tools->SWXSetStandardColors({}), "NoValidColorScheme");
    EXPECT_EQ(prompts.messages, kAskSize);
}

TEST_F(StandardColorsOfTable, NoColorsForAnEmptyTableAgree) {
    Start("standard-colors=0");
    ExpectTranscript(SetCalls());
    EXPECT_TRUE(prompts.messages.empty());
}

TEST_F(StandardColorsOfTable, DifferingNameAsksAndOkSkipsThatEntry) {
    ReadAndChange();
    colors[1].name = "second"; // letter case counts
    ExpectTranscript(SetCalls());
    EXPECT_EQ(Numbers(), (std::vector<ColorNumber>{0x030201, 0, 0x030201}));
    EXPECT_EQ(prompts.messages, kAskName);
}

TEST_F(StandardColorsOfTable, DifferingNameAndCancelEndsAtOnce) {
    ReadAndChange();
    colors[1].name = "renamed";
    prompts.answers = {Answer::Cancel};
    ExpectTranscript(SetCalls());
    EXPECT_EQ(Numbers(), (std::vector<ColorNumber>{0x030201, 0, 0xFFFFFF}));
}

TEST_F(StandardColorsOfTable, EveryDifferingNameAsksAnew) {
    ReadAndChange();
    colors[0].name = colors[2].name = "renamed";
    tools->SWXSetStandardColors(colors);
    EXPECT_EQ(prompts.messages.size(), 2U);
}

TEST_F(StandardColorsOfTable, FewerColorsThanEntriesIsAnErrorAfterThoseWereWritten) {
    ReadAndChange();
    colors.resize(2);
    EXPECT_EQ(ErrorNumberOf([&] { SetCalls(); }), ErrorNumber::SubscriptOutOfRange);
    ExpectTranscript(LoggedCalls());
    EXPECT_EQ(prompts.messages, kAskSize);
    EXPECT_EQ(Numbers(), (std::vector<ColorNumber>{0x030201, 0x030201, 0xFFFFFF}));
    EXPECT_EQ(model->Gate().LiveObjects(), 0U);
}

} // namespace
