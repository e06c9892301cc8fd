// Rules: Console program
#include "converter/TerminalProgress.h"

#include "tests/converter/FakeConsole.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

class TerminalProgressTest : public testing::Test {
protected:
    // The program works through so many steps.
    std::string Told(std::int32_t total, const std::vector<std::int32_t>& steps) {
        {
            TerminalProgress progress(console, "reading");
            progress.Starts(total);
            for (const std::int32_t step : steps)
                progress.Reaches(step);
        }
        return console.told;
    }

    FakeConsole console;
};

TEST_F(TerminalProgressTest, ShareIsToldOncePerPerCentAndTakenAwayAtTheEnd) {
    console.isWatched = true;
    EXPECT_EQ(Told(1000, {1, 2, 9, 10, 1000}),
              "\rreading 0 %\rreading 1 %\rreading 100 %\r             \r");
}

TEST_F(TerminalProgressTest, WithoutATerminalNothingIsTold) {
    EXPECT_EQ(Told(2, {1, 2}), "");
}

TEST_F(TerminalProgressTest, WithoutStepsNothingIsTold) {
    console.isWatched = true;
    EXPECT_EQ(Told(2, {}), "");
}

TEST_F(TerminalProgressTest, MoreStepsThanExpectedAreTheWhole) {
    console.isWatched = true;
    EXPECT_EQ(Told(0, {1, 2}), "\rreading 100 %\r             \r");
    console.told.clear();
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(Told(1, {kMost}), "\rreading 100 %\r             \r");
    console.told.clear();
    EXPECT_EQ(Told(kMost, {kMost / 2 + 1}), "\rreading 50 %\r            \r");
}

} // namespace
